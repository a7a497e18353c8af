// Stands in the page before its own scripts, and watches what is shown, heard and complained of.
'use strict';

window.watch = {
  frames: 0,
  fault: '', // with which the next drawing fails
  contexts: [], // of sound
  begun: [], // sounds: their seconds, and whether the context was running
  music: null, // the one player of all music
  complaints: []
};


// Lets an action precede a function of an object.
function precede(object, name, action) {
  const own = object[name];
  object[name] = function (...given) {
    action.apply(this, given);
    return own.apply(this, given);
  };
}


precede(WebGL2RenderingContext.prototype, 'clear', () => ++watch.frames);
precede(WebGL2RenderingContext.prototype, 'drawArrays', () => {
  if (watch.fault)
    throw new Error(watch.fault);
});


// Sound. Everything that goes to the loudspeakers of the newest context is measured.
let measured;
window.AudioContext = class extends AudioContext {
  constructor(...options) {
    super(...options);
    watch.contexts.push(this);
  }
};
precede(AudioNode.prototype, 'connect', function (target) {
  if (!(target instanceof AudioDestinationNode) || target.context instanceof OfflineAudioContext)
    return;
  measured = target.context.createAnalyser();
  this.connect(measured);
});
precede(AudioBufferSourceNode.prototype, 'start', function () {
  watch.begun.push({seconds: this.buffer.duration, state: this.context.state});
});
precede(HTMLMediaElement.prototype, 'play', function () {
  watch.music = this;
});

// The loudest sample of the last moment, of 1.
watch.loudness = () => {
  if (measured?.context.state !== 'running')
    return 0;
  const samples = new Float32Array(measured.fftSize);
  measured.getFloatTimeDomainData(samples);
  return samples.reduce((loudest, sample) => Math.max(loudest, Math.abs(sample)), 0);
};


// Complaints, for browsers that don't tell them otherwise.
for (const level of ['error', 'warn', 'assert'])
  precede(console, level, (...given) => watch.complaints.push(given.join(' ')));
window.addEventListener('error', ({message, target}) =>
  watch.complaints.push(message || `not loaded: ${/** @type {any} */ (target).outerHTML}`), true);
window.addEventListener('unhandledrejection', event => watch.complaints.push(`rejected: ${event.reason}`));
