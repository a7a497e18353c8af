const STEP = 1000 / 60; // milliseconds
const MOST = 5; // steps for one frame: more are not caught up, or a slow machine would fall further and further behind

// The game takes 60 steps a second on every display. For each frame of the display this counts the steps that are due:
// always the same number where the display's pace allows it, because a step too many or too few looks like a judder.
export class Pace {
  constructor() {
    this.interval = STEP; // between the display's frames, in milliseconds
    this.owed = 0; // steps, with a fraction
    this.resume();
  }

  // The time up to the next frame does not count.
  resume() {
    this.last = null; // when the display showed its last frame
  }

  // How many steps are due at a frame of this time. Times of frames are inexact, and some frames are left out. So
  // frames are counted, and only a time that fits no number of them is measured by the clock.
  due(now) {
    const passed = this.last === null ? STEP : Math.max(0, now - this.last);
    this.last = now;
    const frames = Math.max(1, Math.round(passed / this.interval));
    const even = Math.abs(passed - frames * this.interval) < this.interval / 3;
    this.interval += (passed / frames - this.interval) / 32;
    this.owed += even ? frames * this.perFrame() : passed / STEP;
    const steps = Math.floor(this.owed + 1e-6);
    this.owed -= steps;
    return Math.min(steps, MOST);
  }

  // The steps for one frame of the display. Displays of 59.94 or 119.88 hertz count as what they are sold as.
  perFrame() {
    const steps = this.interval / STEP;
    const simple = steps > 1 ? Math.round(steps) : 1 / Math.round(1 / steps);
    return Math.abs(steps / simple - 1) < 0.01 ? simple : steps;
  }
}
