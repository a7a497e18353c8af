// The page around the game: loads its files, starts it on a click, lets it rest, and says what has gone wrong.

import * as graphics from './graphics.js';
import * as program from './program.js';
import * as sound from './sound.js';

const element = id => document.getElementById(id);
const [canvas, front, bar, message, progress, start, rest] =
  ['canvas', 'front', 'bar', 'message', 'progress', 'start', 'rest'].map(element);

// before: the files to load before the start, with their bytes; sounds: those to load afterwards
const files = JSON.parse(element('files').textContent);
const arrived = {}; // file: bytes
const images = {}; // by the paths that the game uses
let compiled; // the program
let isOpen = false; // the canvas
let state = 'front'; // then 'starting', 'playing' and 'resting', and 'front' again; 'broken' is final

// A browser may refuse a request; then everything stays as it is.
const nevermind = () => {};

// Without milliseconds it gives the page time for its other work.
const wait = milliseconds => new Promise(done => setTimeout(done, milliseconds));


function offer(words, button, action) {
  message.textContent = words;
  message.setAttribute('role', 'alert');
  progress.hidden = true;
  start.disabled = false;
  start.textContent = button;
  start.onclick = action;
  bar.hidden = true;
  front.hidden = false;
  start.focus();
  if (document.fullscreenElement)
    document.exitFullscreen().catch(nevermind);
}


// The game stops behind this message, and no other message replaces it: only reloading the page helps.
function breakOff(words) {
  if (state === 'broken')
    return;
  if (state === 'playing' || state === 'resting')
    program.halt();
  state = 'broken';
  sound.suspend();
  rest.close();
  offer(words, 'Load again', () => location.reload());
}


function graphicsLost() {
  breakOff('The browser took the graphics away, perhaps for another program.');
}


function fail(error) {
  // Whatever fails then fails because of that.
  if (graphics.isLost())
    graphicsLost();
  breakOff('The game stopped, and that is a fault of ours. ' +
    `Version ${element('version').textContent} reports: ${error?.message || error}`);
}


function arrive(file, bytes) {
  arrived[file] = (arrived[file] || 0) + bytes;
  progress.value = Object.values(arrived).reduce((sum, some) => sum + some, 0);
}


async function fetchBytes(file) {
  const response = await fetch(file);
  if (!response.ok)
    throw new Error(`the server answered ${response.status}`);
  const reader = response.body.getReader();
  const parts = [];
  for (let part = await reader.read(); !part.done; part = await reader.read()) {
    parts.push(part.value);
    arrive(file, part.value.length);
  }
  return new Blob(parts, {type: response.headers.get('content-type')});
}


async function picture(blob) {
  const image = new Image();
  image.src = URL.createObjectURL(blob);
  await image.decode();
  URL.revokeObjectURL(image.src);
  return image;
}


// Pictures are sent as WebP, which is smaller; the game knows them without that extension.
async function load(file) {
  const place = file.replace(/\.webp$/, '');
  try {
    if (file.endsWith('.wasm'))
      compiled = await WebAssembly.compile(await (await fetchBytes(file)).arrayBuffer());
    else
      images[place] = await picture(await fetchBytes(file));
  } catch (error) {
    throw new Error(`${place} did not load: ${error.message}.`);
  }
}


// Players see the front picture while the rest loads, so the rest waits until the picture is on the screen, if the
// browser reports that. Both waits have a limit in milliseconds: a request may hang, and nothing is shown in a hidden
// tab.
async function frontIsSeen() {
  const LONGEST_ON_ITS_WAY = 10000;
  const LONGEST_UNTIL_SEEN = 1000;
  const type = 'largest-contentful-paint';
  const shown = front.querySelector('img');
  await Promise.race([shown.decode().catch(nevermind), wait(LONGEST_ON_ITS_WAY)]);
  if (!PerformanceObserver.supportedEntryTypes.includes(type))
    return;
  const seen = new Promise(done => {
    const look = list => list.getEntries().some(({element}) => element === shown) && done();
    new PerformanceObserver(look).observe({type, buffered: true});
  });
  await Promise.race([seen, wait(LONGEST_UNTIL_SEEN)]);
}


async function loadAll() {
  progress.max = Object.values(files.before).reduce((sum, bytes) => sum + bytes, 0);
  await frontIsSeen();
  try {
    await Promise.all(Object.keys(files.before).map(load));
  } catch (error) {
    breakOff(error.message);
    return;
  }
  progress.hidden = true;
  start.disabled = false;
  start.textContent = 'Play';
  start.onclick = play;
  start.focus();
}


// One after another; sent as FLAC, which is smaller. A sound that does not arrive is not heard, and is asked for again with the next game.
async function loadSounds() {
  for (const file of files.sounds.splice(0))
    try {
      await sound.add(file.replace(/\.flac$/, ''), await (await fetchBytes(file)).arrayBuffer());
    } catch (error) {
      files.sounds.push(file);
      console.warn(`${file} will not be heard: ${error.message}`);
    }
}


async function play() {
  state = 'starting';
  start.disabled = true;
  start.textContent = 'Starting…';
  try {
    sound.open();
    await wait();
    if (!isOpen && !graphics.open(canvas)) {
      breakOff('This browser offers no WebGL 2, which the game needs. It may be switched off in the browser\'s settings.');
      return;
    }
    if (!isOpen) {
      isOpen = true;
      canvas.addEventListener('webglcontextlost', graphicsLost);
      await graphics.makeTextures(images);
    }
    if (state === 'starting')
      await run();
  } catch (error) {
    fail(error);
  }
}


function run() {
  return program.start(compiled, canvas, {
    shown() {
      if (state === 'broken') {
        program.halt();
        return;
      }
      state = 'playing';
      front.hidden = true;
      bar.hidden = false;
      canvas.focus({preventScroll: true});
      loadSounds();
      if (document.hidden)
        takeRest();
    },
    failed: fail,
    closed() {
      if (state === 'broken')
        return;
      state = 'front';
      sound.suspend();
      offer('Thank you for playing.', 'Play again', play);
    }
  });
}


// Nothing moves and nothing is heard until the player continues.
function takeRest(words = 'The game is waiting for you.', mayRestart = false) {
  if (state !== 'playing')
    return;
  state = 'resting';
  program.suspend();
  sound.suspend();
  element('restWords').textContent = words;
  element('again').hidden = !mayRestart;
  rest.showModal();
}


function goOn() {
  if (state !== 'resting')
    return;
  state = 'playing';
  rest.close();
  program.resume();
  sound.open();
  canvas.focus({preventScroll: true});
}


async function fillScreen() {
  try {
    if (document.fullscreenElement) {
      await document.exitFullscreen();
    } else {
      await document.documentElement.requestFullscreen();
      await screen.orientation.lock('landscape');
    }
  } catch {
    // The window stays as it is.
  }
}


// A button does its work and gives the keyboard focus back to the canvas.
function onPress(id, action) {
  element(id).addEventListener('click', () => {
    canvas.focus({preventScroll: true});
    action(element(id));
  });
}

const toggle = (button, on) => button.setAttribute('aria-pressed', on);

onPress('pause', () => program.press(' '));
// It is beside the other buttons, and a slip would cost the whole game.
onPress('restart', () => takeRest('Leave this game and start again?', true));
onPress('sound', button => {
  sound.setOn(!sound.isOn());
  toggle(button, sound.isOn());
});
onPress('full', fillScreen);
toggle(element('sound'), sound.isOn());
document.addEventListener('fullscreenchange', () => toggle(element('full'), Boolean(document.fullscreenElement)));
element('full').hidden = !document.fullscreenEnabled;

element('goOn').addEventListener('click', goOn);
element('again').addEventListener('click', () => {
  goOn();
  program.press('r');
});
rest.addEventListener('close', goOn);
document.addEventListener('visibilitychange', () => document.hidden && takeRest());

window.addEventListener('keydown', event => {
  if (state === 'playing' && event.key === 'Escape' && !document.fullscreenElement)
    program.press('\x1b');
});

// A phone call takes the sound away; the next press brings it back.
for (const press of ['pointerup', 'click', 'keydown'])
  window.addEventListener(press, () => state === 'playing' && sound.wake(), true);

// Players who have zoomed in must be able to zoom out again.
window.visualViewport?.addEventListener('resize', () =>
  document.documentElement.classList.toggle('enlarged', visualViewport.scale > 1));

loadAll().catch(fail);
