// What may happen to a page: each of these is called before the page's own scripts.
'use strict';

const trouble = {
  // Sound, music, full screen and its direction are refused.
  refuse() {
    const refuse = (of, name, kind) => of[name] = () => Promise.reject(new DOMException('refused', kind));
    refuse(AudioContext.prototype, 'resume', 'InvalidStateError');
    refuse(AudioContext.prototype, 'suspend', 'InvalidStateError');
    refuse(HTMLMediaElement.prototype, 'play', 'NotAllowedError');
    refuse(Element.prototype, 'requestFullscreen', 'TypeError');
    refuse(ScreenOrientation.prototype, 'lock', 'NotSupportedError');
  },

  // While `refusing`, sound may be resumed only in the answer to a press.
  refusing: false,
  resumeOnPress() {
    const resume = AudioContext.prototype.resume;
    AudioContext.prototype.resume = function () {
      const {type, pointerType} = /** @type {any} */ (window.event || {});
      const pressed = ['keydown', 'click', pointerType === 'mouse' ? 'pointerdown' : 'pointerup'].includes(type);
      return trouble.refusing && !pressed ? Promise.reject(new DOMException('not now', 'NotAllowedError'))
        : resume.call(this);
    };
  },

  // The context that sounds now is interrupted for ever.
  interrupt() {
    const context = watch.contexts[watch.contexts.length - 1];
    context.suspend();
    Object.defineProperty(context, 'state', {value: 'interrupted'});
    context.resume = () => new Promise(() => {});
  }
};
