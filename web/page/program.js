// The game's program: what it is given by the browser, and what the page asks of it while it runs.

import * as graphics from './graphics.js';
import * as input from './input.js';
import {Pace} from './pace.js';
import * as sound from './sound.js';
import VorelDefense from './vorel-defense.js';

let page; // what it is told: `shown`, with the first frame; `failed`, with an error; `closed`, when the game has ended
let pace;
let wakeProgram = null; // while it waits for its next steps: called with their number
let request; // for a frame of the display


export function start(compiled, canvas, told) {
  page = told;
  pace = new Pace();
  return VorelDefense({
    graphics, input, sound, nextFrame,
    open(width, height) {
      input.open(canvas, width, height);
    },
    close() {
      halt();
      page.closed();
    },
    instantiateWasm(imports, ready) {
      WebAssembly.instantiate(compiled, imports).then(instance => ready(instance, compiled)).catch(page.failed);
      return {};
    }
  });
}


function nextFrame(wake) {
  const first = !wakeProgram;
  wakeProgram = wake;
  requestFrame();
  if (first)
    page.shown();
}


function requestFrame() {
  request = requestAnimationFrame(frame);
}


function frame(now) {
  const steps = pace.due(now);
  if (steps === 0) {
    requestFrame();
    return;
  }
  try {
    wakeProgram(steps);
  } catch (error) {
    page.failed(error);
  }
}


// A key that a button of the page stands for.
export {press} from './input.js';


export function onTitle() {
  return graphics.isBackground('Assets/img/TitleScreen.jpg');
}


// Nothing moves until `resume`.
export function suspend() {
  cancelAnimationFrame(request);
  input.suspend();
}


export function resume() {
  input.resume();
  pace.resume();
  requestFrame();
}


// For ever.
export function halt() {
  cancelAnimationFrame(request);
  wakeProgram = null;
  input.close();
}
