// The page around the game: loads its files, starts it on a press, asks before anything is lost, and says what has gone
// wrong.

import * as graphics from './graphics.js';
import * as program from './program.js';
import * as sound from './sound.js';

/** @type {(id: string) => any} */
const element = id => document.getElementById(id);
const [canvas, front, bar, message, progress, play, reload, question, questionText, goOn, startOver] =
  ['canvas', 'front', 'bar', 'message', 'progress', 'play', 'reload', 'question', 'questionText', 'goOn', 'startOver']
    .map(element);

const WAITING = 'The game is waiting for you.';
const LOSS_LIMIT = 10000; // milliseconds that players wait for lost graphics

// before: the files to load before the game can start, with their bytes; sounds: those to load afterwards
const files = JSON.parse(element('files').textContent);
/** @type {Record<string, HTMLImageElement>} */
const images = {}; // by the paths that the game uses
let compiled; // the program
let state = 'front'; // then 'starting', 'playing' and 'suspended', and 'front' again; 'broken' is final
let inSight = true; // in a long page around the game's frame
let lossTimer;
let soundsLoading;

// Without milliseconds it gives the page time for its other work.
const wait = milliseconds => new Promise(done => setTimeout(done, milliseconds));

// Files are packed in formats that the game does not know of.
const unpacked = file => file.replace(/\.(webp|flac)$/, '');


// In a frame, the reader may be typing into the page around it.
function focus(target) {
  if (document.hasFocus())
    target.focus({preventScroll: true});
}


// The front stands before the game again, with one of its buttons.
function showFront(words, button) {
  message.setAttribute('role', 'alert');
  message.textContent = words;
  progress.hidden = true;
  play.hidden = button !== play;
  reload.hidden = button !== reload;
  button.disabled = false;
  bar.hidden = true;
  canvas.inert = true;
  front.hidden = false;
  focus(button);
  if (document.fullscreenElement)
    toggleFullScreen();
}


// The game stops behind this message, and no other message replaces it: only reloading the page helps.
function breakOff(words) {
  if (state === 'broken')
    return;
  state = 'broken';
  program.halt();
  sound.suspend();
  question.close();
  showFront(words, reload);
}


function graphicsFailed() {
  breakOff('The graphics were lost, and the browser did not restore them.');
}


function fail(error) {
  // Whatever fails then fails because of that.
  if (graphics.isLost())
    graphicsFailed();
  breakOff(`The game failed: ${error?.message || error} (version ${element('version').textContent}).`);
}


async function fetchBytes(file) {
  const response = await fetch(file);
  if (!response.ok)
    throw new Error(`the server answered ${response.status}`);
  return response.arrayBuffer();
}


// WebGL takes no pictures of foreign servers unless they allow it, and to a frame in a sandbox every server is foreign.
async function loadImage(file) {
  const image = Object.assign(new Image(), {crossOrigin: 'anonymous', src: file});
  await image.decode();
  return image;
}


async function load(file) {
  try {
    if (file.endsWith('.wasm'))
      compiled = await WebAssembly.compile(await fetchBytes(file));
    else
      images[unpacked(file)] = await loadImage(file);
  } catch (error) {
    throw new Error(`${unpacked(file)} did not load: ${error.message}`);
  }
  progress.value += files.before[file];
}


// Players see the front's picture while the rest loads, so the rest waits until the picture is on the screen, if the
// browser reports that. Both waits have a limit in milliseconds: a request may hang, and nothing is shown in a hidden
// tab.
async function frontIsSeen() {
  const LONGEST_ON_ITS_WAY = 10000;
  const LONGEST_UNTIL_SEEN = 1000;
  const type = 'largest-contentful-paint';
  const picture = front.querySelector('img');
  await Promise.race([picture.decode().catch(() => {}), wait(LONGEST_ON_ITS_WAY)]);
  if (!PerformanceObserver.supportedEntryTypes.includes(type))
    return;
  const seen = new Promise(done => {
    const look = list => list.getEntries().some(({element}) => element === picture) && done();
    new PerformanceObserver(look).observe({type, buffered: true});
  });
  await Promise.race([seen, wait(LONGEST_UNTIL_SEEN)]);
}


async function loadAll() {
  play.disabled = true; // some browsers keep what it was when the page is loaded again
  const sizes = Object.values(files.before);
  progress.max = sizes.reduce((sum, bytes) => sum + bytes, 0);
  await frontIsSeen();
  try {
    await Promise.all(Object.keys(files.before).map(load));
  } catch (error) {
    breakOff(error.message);
    return;
  }
  progress.hidden = true;
  play.disabled = false;
  play.textContent = 'Play';
  focus(play);
}


// One after another. Those that do not arrive are retried with a growing delay.
async function loadSounds() {
  for (let seconds = 2; files.sounds.length > 0; seconds = Math.min(2 * seconds, 30)) {
    for (const file of files.sounds.splice(0))
      try {
        await sound.add(unpacked(file), await fetchBytes(file));
      } catch (error) {
        files.sounds.push(file);
        console.warn(`${file} can't be heard yet: ${error.message}`);
      }
    await wait(1000 * seconds);
  }
}


async function start() {
  state = 'starting';
  play.disabled = true;
  play.textContent = 'Starting…';
  try {
    sound.open();
    await wait();
    if (!graphics.open(canvas)) {
      breakOff('This browser offers no WebGL 2, which the game needs. ' +
        'It may be switched off in the browser\'s settings.');
      return;
    }
    await graphics.makeTextures(images);
    if (state === 'starting')
      await program.start(compiled, canvas, {shown, failed: fail, closed});
  } catch (error) {
    fail(error);
  }
}


// The game has drawn its first frame.
function shown() {
  if (state === 'broken') {
    program.halt();
    return;
  }
  state = 'playing';
  front.hidden = true;
  bar.hidden = false;
  canvas.inert = false;
  focus(canvas);
  soundsLoading ??= loadSounds();
  suspendUnseen();
  if (graphics.isLost())
    suspend(WAITING);
}


function closed() {
  state = 'front';
  sound.suspend();
  play.textContent = 'Play again';
  showFront('Thank you for playing.', play);
}


// Without graphics the game can only be left.
function pose(words) {
  const lost = graphics.isLost();
  questionText.textContent = lost ? 'The graphics were lost. Waiting for the browser to restore them…' : words;
  goOn.disabled = lost;
  startOver.disabled = lost;
}


// Nothing moves and nothing is heard until the player answers.
function suspend(words) {
  if (state !== 'playing')
    return;
  state = 'suspended';
  program.suspend();
  sound.suspend();
  pose(words);
  // The dialog would take the focus from the page around a frame, and scroll to itself.
  question.inert = true;
  question.showModal();
  question.inert = false;
  focus(goOn);
}


// In answer to a press: sound that a call has interrupted comes back with a new context only.
function resume() {
  if (state !== 'suspended')
    return;
  state = 'playing';
  question.close();
  program.resume();
  sound.open();
  focus(canvas);
  suspendUnseen(); // a key can answer out of sight too
}


function ask() {
  suspend('Go on with this game?');
}


function suspendUnseen() {
  if (document.hidden || !inSight)
    suspend(WAITING);
}


// Phones take the graphics from a page in the background, and may restore them only when it is looked at again.
function limitLoss() {
  clearTimeout(lossTimer);
  if (graphics.isLost() && !document.hidden)
    lossTimer = setTimeout(graphicsFailed, LOSS_LIMIT);
}


function loseGraphics(event) {
  event.preventDefault(); // otherwise the browser never restores them
  limitLoss();
  suspend(WAITING);
  pose(WAITING); // the question may have been open already
}


async function restoreGraphics() {
  limitLoss();
  try {
    await graphics.makeTextures(images);
  } catch (error) {
    fail(error);
  }
  pose(WAITING);
  focus(goOn);
}


async function toggleFullScreen() {
  try {
    if (document.fullscreenElement) {
      await document.exitFullscreen();
    } else {
      await document.documentElement.requestFullscreen();
      await screen.orientation.lock('landscape');
    }
  } catch {
    // The browser refuses, and the window stays as it is.
  }
}


// A button does its work and gives the keyboard focus back to the canvas.
function onPress(id, action) {
  element(id).addEventListener('click', () => {
    focus(canvas);
    action(element(id));
  });
}

const toggle = (button, on) => button.setAttribute('aria-pressed', on);

// On the title any key would start the game.
onPress('pause', () => program.onTitle() || program.press(' '));
onPress('restart', () => program.onTitle() || ask());
onPress('sound', button => {
  sound.setOn(!sound.isOn());
  toggle(button, sound.isOn());
});
onPress('full', toggleFullScreen);
toggle(element('sound'), sound.isOn());
document.addEventListener('fullscreenchange', () => toggle(element('full'), Boolean(document.fullscreenElement)));
element('full').hidden = !document.fullscreenEnabled;

play.addEventListener('click', start);
goOn.addEventListener('click', resume);
startOver.addEventListener('click', () => {
  resume();
  program.press('r');
});
element('leave').addEventListener('click', () => {
  resume();
  program.press('\x1b');
});
// A phone's gesture for going back closes it too.
question.addEventListener('close', () => question.open || resume());
// It may have been asked while the player was elsewhere.
window.addEventListener('focus', () => question.open && focus(goOn));

// A slip must not end a game, so Escape only asks, however often it is pressed. In full screen it is the browser's.
window.addEventListener('keydown', event => {
  if (event.key !== 'Escape' || document.fullscreenElement)
    return;
  event.preventDefault();
  ask();
}, true);

document.addEventListener('visibilitychange', () => {
  suspendUnseen();
  limitLoss();
});
new IntersectionObserver(entries => {
  inSight = entries.at(-1).isIntersecting;
  suspendUnseen();
}).observe(canvas);

canvas.addEventListener('webglcontextlost', loseGraphics);
canvas.addEventListener('webglcontextrestored', restoreGraphics);

// A phone call takes the sound away; the next press brings it back.
for (const press of ['pointerup', 'click', 'keydown'])
  window.addEventListener(press, () => state === 'playing' && sound.wake(), true);

// Players who have zoomed in must be able to zoom out again.
visualViewport.addEventListener('resize', () =>
  document.documentElement.classList.toggle('enlarged', visualViewport.scale > 1));

// A long touch shows a magnifying glass on some phones. Where two fingers may zoom, they must go on to.
canvas.addEventListener('touchstart', event => {
  if (!document.documentElement.classList.contains('enlarged'))
    event.preventDefault();
}, {passive: false});

loadAll().catch(fail);
