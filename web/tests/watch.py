"""Scripts that stand in the page before its own, and watch it."""

# Everything that goes to the loudspeakers is measured.
EARS = """
'use strict';
{
  const connect = AudioNode.prototype.connect;
  let measured;
  AudioNode.prototype.connect = function (target, ...where) {
    if (target instanceof AudioDestinationNode) {
      measured = measured || target.context.createAnalyser();
      connect.call(this, measured);
    }
    return connect.call(this, target, ...where);
  };
  // The loudest sample of the last moment, of 1.
  window.loudness = () => {
    if (!measured || measured.context.state !== 'running')
      return 0;
    const samples = new Float32Array(measured.fftSize);
    measured.getFloatTimeDomainData(samples);
    return samples.reduce((loudest, sample) => Math.max(loudest, Math.abs(sample)), 0);
  };
}
"""

# What goes wrong, for browsers that don't tell it themselves.
COMPLAINTS = """
window.complaints = [];
for (const level of ['error', 'warn', 'assert']) {
  const own = console[level];
  console[level] = (...given) => {
    complaints.push(given.join(' '));
    own.apply(console, given);
  };
}
window.addEventListener('error', event =>
  complaints.push(event.message || `not loaded: ${event.target.outerHTML}`), true);
window.addEventListener('unhandledrejection', event => complaints.push(`rejected: ${event.reason}`));
document.addEventListener('securitypolicyviolation', event => complaints.push(`policy: ${event.violatedDirective}`));
"""

# What the program does: its steps and frames, what it takes of the graphics, and when it may not draw any more.
PROGRAM = """
window.program = {steps: 0, frames: 0, fault: '', made: {}, deleted: {}, contexts: [], blackFrames: 0};
{
  // A step ends its input by asking for more than there is.
  const counted = ask => (...given) => {
    const more = ask(...given);
    program.steps += more === 0;
    return more;
  };
  for (const name of ['instantiate', 'instantiateStreaming']) {
    const own = WebAssembly[name];
    WebAssembly[name] = (source, imports) => {
      for (const functions of Object.values(imports || {}))
        for (const [key, value] of Object.entries(functions))
          if (typeof value === 'function' && value.name.includes('webInput'))
            functions[key] = counted(value);
      return own.call(WebAssembly, source, imports);
    };
  }

  const of = WebGLRenderingContext.prototype;
  const before = (name, action) => {
    const own = of[name];
    of[name] = function (...given) {
      action.apply(this, given);
      return own.apply(this, given);
    };
  };
  before('clear', function () { ++program.frames; });
  let empty = false; // the canvas, since it has been resized
  before('drawElements', function () {
    if (program.fault)
      throw new Error(program.fault);
    empty = false;
  });
  for (const kind of ['Shader', 'Program', 'Buffer', 'Texture', 'Framebuffer']) {
    before(`create${kind}`, () => program.made[kind] = (program.made[kind] || 0) + 1);
    before(`delete${kind}`, () => program.deleted[kind] = (program.deleted[kind] || 0) + 1);
  }

  const getContext = HTMLCanvasElement.prototype.getContext;
  HTMLCanvasElement.prototype.getContext = function (kind, ...options) {
    const context = getContext.call(this, kind, ...options);
    if (kind.startsWith('webgl') && context && !program.contexts.includes(context))
      program.contexts.push(context);
    return context;
  };

  // What is asked of a canvas after a frame is only done when that frame has been shown.
  for (const side of ['width', 'height']) {
    const own = Object.getOwnPropertyDescriptor(HTMLCanvasElement.prototype, side);
    Object.defineProperty(HTMLCanvasElement.prototype, side, {...own, set(pixels) {
      empty = empty || this.id === 'canvas';
      own.set.call(this, pixels);
    }});
  }
  const shown = new MessageChannel();
  shown.port1.onmessage = () => program.blackFrames += empty;
  const requestFrame = window.requestAnimationFrame;
  (function watch() {
    shown.port2.postMessage('');
    requestFrame(watch);
  })();
}
"""

# What is begun to be heard, and whether the sound is awake then. `audio` has what the page hears with.
SOUNDS = """
window.audio = {begun: [], contexts: []};
{
  const begin = AudioBufferSourceNode.prototype.start;
  AudioBufferSourceNode.prototype.start = function (...times) {
    audio.begun.push({seconds: this.buffer.duration, state: this.context.state});
    return begin.apply(this, times);
  };
  window.AudioContext = class extends AudioContext {
    constructor(...options) {
      super(...options);
      audio.contexts.push(this);
    }
  };
}
"""

# A display of any rate, on a clock that goes as fast as the machine can. Work takes no time on it; nothing is drawn. The
# program is called up to `late` milliseconds after the display has shown a frame, as on a busy machine.
DISPLAY = """
WebGLRenderingContext.prototype.drawElements = () => {};
window.display = {now: 0, waiting: [], timers: []};
{
  const requestFrame = window.requestAnimationFrame.bind(window);
  const startTimer = window.setTimeout.bind(window);
  const realNow = performance.now.bind(performance);
  let begun = false;
  performance.now = () => begun ? display.now : realNow();
  window.requestAnimationFrame = next => begun ? display.waiting.push(next) : requestFrame(next);
  window.setTimeout = (next, wait = 0, ...given) => begun
    ? display.timers.push({next: () => next(...given), at: display.now + wait}) : startTimer(next, wait, ...given);

  const turn = () => new Promise(done => startTimer(done));
  const passTimers = until => {
    for (;;) {
      display.timers.sort((one, other) => one.at - other.at);
      if (!display.timers.length || display.timers[0].at > until)
        break;
      const {next, at} = display.timers.shift();
      display.now = Math.max(display.now, at);
      next();
    }
    display.now = Math.max(display.now, until);
  };

  // Shows this many seconds at a rate in hertz; tells the steps of the program between two frames of the display.
  display.show = async (rate, seconds, late = 0) => {
    if (!begun) {
      display.now = realNow();
      begun = true;
      await new Promise(requestFrame); // what waits for the real display is called by it for the last time
      await new Promise(done => startTimer(done, 100));
    }
    const steps = [];
    const begin = display.now;
    for (let frame = 1; frame <= rate * seconds; ++frame) {
      const before = program.steps;
      const shown = begin + frame * 1000 / rate;
      passTimers(shown);
      passTimers(shown + late * Math.random());
      for (const next of display.waiting.splice(0))
        next(shown);
      steps.push(program.steps - before);
      if (frame % 20 === 0)
        await turn();
    }
    return steps;
  };
  // Shows nothing for this many seconds.
  display.stop = seconds => passTimers(display.now + 1000 * seconds);
}
"""
