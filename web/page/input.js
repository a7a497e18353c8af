// The player's input, in the numbers of SDL: its event types, buttons and keys.

const KEY = 0x300, MOTION = 0x400, DOWN = 0x401, UP = 0x402;
const BUTTONS = [[1, 1], [4, 2], [2, 3]]; // each one's bit in the browser, and its number
const WHEEL_UP = 4, WHEEL_DOWN = 5; // buttons too

let canvas;
let size; // of the program's window: its width and height
let events; // what ends all listening
let suspended = false;
let held = null; // the pointer that holds the canvas
let pressed = 0; // the buttons of that pointer that are down: the browser's bits
const queue = []; // what the program has not asked for yet: event type, key or button, place


// The character on a key; where a layout has no Latin letters, the one that other keyboards have there.
export function character({key, code}) {
  if (/^[ -~]$/.test(key))
    return key.toLowerCase().charCodeAt(0);
  if (code === 'Space')
    return ' '.charCodeAt(0);
  const letter = /^Key([A-Z])$/.exec(code);
  return letter ? letter[1].toLowerCase().charCodeAt(0) : 0;
}


// Where a point of the page is in the program's window. A pointer that is dragged out of it stays at its edge.
export function place({clientX, clientY}, area, [width, height]) {
  const within = (part, parts) => Math.min(Math.max(Math.floor(part * parts), 0), parts - 1);
  return [within((clientX - area.left) / area.width, width), within((clientY - area.top) / area.height, height)];
}


function push(type, which, event) {
  if (!suspended)
    queue.push([type, which, ...event ? place(event, canvas.getBoundingClientRect(), size) : [0, 0]]);
}


// The oldest input that the program has not had yet.
export function next() {
  return queue.shift();
}


export function press(key) {
  push(KEY, key.charCodeAt(0));
}


// The game gets no keys that the browser or the page needs.
function onKey(event) {
  const forOthers = suspended || event.ctrlKey || event.altKey || event.metaKey ||
    /^(Tab|Escape|F\d+)$/.test(event.key) || event.target.closest?.('button');
  if (forOthers)
    return;
  event.preventDefault();
  if (!event.repeat)
    push(KEY, character(event));
}


// The canvas belongs to the first pointer that presses it, until that pointer has released all its buttons or is gone.
// Other fingers are ignored meanwhile, on the canvas or beside it. A finger is the left button.
function onPointer(event) {
  if (held === null && event.type === 'pointerdown') {
    canvas.setPointerCapture(event.pointerId);
    canvas.focus({preventScroll: true});
    held = event.pointerId;
  }
  const holds = held === event.pointerId;
  const hovers = held === null && event.type === 'pointermove' && event.pointerType !== 'touch';
  const taken = event.type === 'pointercancel' || event.type === 'lostpointercapture';
  if (!taken && (holds || hovers))
    push(MOTION, 0, event);
  if (holds)
    setPressed(taken ? 0 : event.buttons, event);
}


// A second mouse button arrives as a motion, so compare which buttons are down now. While the pointer is held it may be
// anywhere: a button that goes down beside the canvas is not meant for the game, which would buy a turret at the edge.
function setPressed(buttons, event) {
  for (const [bit, number] of BUTTONS)
    if (pressed & ~buttons & bit)
      push(UP, number, event);
    else if (buttons & ~pressed & bit && document.elementFromPoint(event.clientX, event.clientY) === canvas)
      push(DOWN, number, event);
  pressed = buttons;
  if (buttons === 0)
    held = null;
}


// With Ctrl, or with two fingers on a touchpad, the wheel zooms the page.
function onWheel(event) {
  if (event.ctrlKey)
    return;
  event.preventDefault();
  const button = event.deltaY < 0 ? WHEEL_UP : WHEEL_DOWN;
  push(DOWN, button, event);
  push(UP, button, event);
}


export function open(onCanvas, width, height) {
  canvas = onCanvas;
  size = [width, height];
  suspended = false;
  queue.length = 0;
  events = new AbortController();
  const options = {signal: events.signal, passive: false};
  window.addEventListener('keydown', onKey, options);
  for (const name of ['pointermove', 'pointerdown', 'pointerup', 'pointercancel', 'lostpointercapture'])
    canvas.addEventListener(name, onPointer, options);
  canvas.addEventListener('wheel', onWheel, options);
  canvas.addEventListener('contextmenu', event => event.preventDefault(), options);
}


// Lets go of all buttons, and hears nothing until `resume`.
export function suspend() {
  setPressed(0);
  suspended = true;
}


export function resume() {
  suspended = false;
}


export function close() {
  setPressed(0);
  events?.abort();
}
