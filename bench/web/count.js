// Stands in the page before its own scripts. Counts frames, by the call that begins each, and keeps what the last whole
// one drew.
'use strict';

let framesDrawn = 0;
const of = WebGL2RenderingContext.prototype;
const wrap = (name, before) => {
  const own = of[name];
  of[name] = function (...given) {
    before(this, ...given);
    return own.apply(this, given);
  };
};
const seen = {
  recording: false,
  last: null,
  corners: null,
  batches: [],
  sizes: new Map(),
  bound: null
};
wrap('clear', () => {
  if (seen.recording && seen.batches.length)
    seen.last = {corners: seen.corners, batches: seen.batches};
  seen.batches = [];
  ++framesDrawn;
});
wrap('bindTexture', (gl, target, texture) => seen.bound = texture);
wrap('texImage2D', (gl, target, level, internal, ...given) => {
  const [width, height] = given.length > 3 ? given : [given[2].naturalWidth, given[2].naturalHeight];
  seen.sizes.set(seen.bound, {texture: seen.sizes.size, width, height});
});
wrap('bufferData', (gl, target, data) => {
  if (seen.recording)
    seen.corners = Array.from(data);
});
wrap('drawArrays', (gl, mode, first, count) => {
  if (seen.recording)
    seen.batches.push({...seen.sizes.get(seen.bound), count});
});
