// The pace of the game on every kind of display, the characters of keys, and the places of a pointer: functions of
// numbers, which need no browser.
//
//     node web/tests/paceAndKeys.js

import assert from 'node:assert/strict';
import test from 'node:test';
import {character, place} from '../page/input.js';
import {Pace} from '../page/pace.js';

const SECOND = 1000; // milliseconds


const sum = numbers => numbers.reduce((one, other) => one + other, 0);


class Display {
  constructor() {
    this.pace = new Pace();
    this.shown = 0;
  }

  // The steps at each frame of some seconds; `hertz` may be a function of the time. Browsers round times, and are up to
  // half a millisecond wrong.
  show(seconds, hertz) {
    const steps = [];
    const end = this.shown + seconds * SECOND - 0.001;
    while (this.shown < end) {
      this.shown += SECOND / (typeof hertz === 'function' ? hertz(this.shown) : hertz);
      const told = this.shown + 0.5 * Math.sin(this.shown);
      steps.push(this.pace.due(Math.round(10 * told) / 10));
    }
    return steps;
  }

  standStill(seconds) {
    this.shown += seconds * SECOND;
  }
}


for (const hertz of [24, 30, 48, 59.94, 60, 75, 90, 120, 144, 240])
  test(`a display of ${hertz} hertz shows 60 steps a second, as evenly as it can`, () => {
    const display = new Display();
    display.show(3, hertz);
    const steps = display.show(10, hertz);
    assert.ok(Math.abs(sum(steps) - 600) <= 6, `${sum(steps)} steps in ten seconds`);
    assert.ok(Math.min(...steps) >= Math.floor(60 / Math.round(hertz)), `${Math.min(...steps)} steps at one frame`);
    assert.ok(Math.max(...steps) <= Math.ceil(60 / Math.round(hertz)), `${Math.max(...steps)} steps at one frame`);
  });


test('a display whose rate wanders between 48 and 120 hertz shows 60 steps a second', () => {
  const steps = new Display().show(20, now => 84 + 36 * Math.sin(now / 700));
  assert.ok(Math.abs(sum(steps) - 1200) <= 24, `${sum(steps)} steps in twenty seconds`);
  assert.ok(Math.max(...steps) <= 2, `${Math.max(...steps)} steps at one frame`);
});


test('a window that is dragged to a display of 120 hertz keeps its pace', () => {
  const display = new Display();
  display.show(3, 60);
  const steps = display.show(3, 120);
  assert.ok(Math.abs(sum(steps) - 180) <= 9, `${sum(steps)} steps in three seconds`);
});


test('after a display that stood still, a few late steps and then the usual pace', () => {
  const display = new Display();
  display.show(3, 60);
  display.standStill(3);
  const steps = display.show(2, 60);
  assert.ok(Math.max(...steps) <= 5, `${Math.max(...steps)} steps at one frame`);
  assert.ok(sum(steps) >= 120 && sum(steps) <= 130, `${sum(steps)} steps in two seconds`);
});


test('a rest is not caught up', () => {
  const display = new Display();
  display.show(3, 60);
  display.standStill(60);
  display.pace.resume();
  assert.deepEqual(display.show(0.05, 60), [1, 1, 1]);
});


for (const [layout, key, code, expected] of [
  ['the usual one', 'R', 'KeyR', 'r'],
  ['Cyrillic', 'к', 'KeyR', 'r'],
  ['Dvorak', 'r', 'KeyO', 'r'],
  ['Dvorak', 'p', 'KeyR', 'p'],
  ['one with an ideographic space', '\u3000', 'Space', ' '],
  ['any', 'ArrowLeft', 'ArrowLeft', '\0']
])
  test(`the key ${code} with ${key} on it, on a keyboard like ${layout}, is ${JSON.stringify(expected)}`, () =>
    assert.equal(character({key, code}), expected.charCodeAt(0)));


test('a pointer that is dragged out of the window stays at its edge', () => {
  const area = {left: 100, top: 50, width: 512, height: 384};
  for (const [clientX, clientY, expected] of [
    [100, 50, [0, 0]], [356, 242, [512, 384]], [99, 49, [0, 0]], [612, 434, [1023, 767]], [9000, 9000, [1023, 767]]
  ])
    assert.deepEqual(place({clientX, clientY}, area, [1024, 768]), expected);
});
