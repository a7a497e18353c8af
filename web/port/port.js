// What only the browser can do for the port; port.h says what each function promises. The page hands over, as fields
// of Module: gl (the canvas's WebGL context), pictures and sounds (by path), address (where a file of a path is), audio
// (an AudioContext), speaker (the node that all sound goes to), music (the element that plays it), musicVolume (its node)
// and closed (a function that is called when the game has ended).

mergeInto(LibraryManager.library, {
  $Screen: {
    textures: {},

    // One program draws everything: a picture tinted by a colour.
    open: function () {
      var gl = Module['gl'];
      var program = gl.createProgram();
      [
        [gl.VERTEX_SHADER,
          'attribute vec2 place; attribute vec2 texel; attribute vec4 tint;' +
          'varying vec2 at; varying vec4 colour;' +
          'void main() { gl_Position = vec4(place, 0.0, 1.0); at = texel; colour = tint; }'],
        [gl.FRAGMENT_SHADER,
          '\n#ifdef GL_FRAGMENT_PRECISION_HIGH\nprecision highp float;\n#else\nprecision mediump float;\n#endif\n' +
          'uniform sampler2D picture; varying vec2 at; varying vec4 colour;' +
          'void main() { gl_FragColor = texture2D(picture, at) * colour; }']
      ].forEach(function (part) {
        var shader = gl.createShader(part[0]);
        gl.shaderSource(shader, part[1]);
        gl.compileShader(shader);
        gl.attachShader(program, shader);
      });
      ['place', 'texel', 'tint'].forEach(function (name, i) { gl.bindAttribLocation(program, i, name); });
      gl.linkProgram(program);
      gl.useProgram(program);

      gl.bindBuffer(gl.ARRAY_BUFFER, Screen.corners = gl.createBuffer());
      gl.bindBuffer(gl.ELEMENT_ARRAY_BUFFER, Screen.indices = gl.createBuffer());
      gl.vertexAttribPointer(0, 2, gl.FLOAT, false, 20, 0);
      gl.vertexAttribPointer(1, 2, gl.FLOAT, false, 20, 8);
      gl.vertexAttribPointer(2, 4, gl.UNSIGNED_BYTE, true, 20, 16);
      [0, 1, 2].forEach(function (i) { gl.enableVertexAttribArray(i); });
      gl.enable(gl.BLEND);
      gl.blendFunc(gl.SRC_ALPHA, gl.ONE_MINUS_SRC_ALPHA);

      gl.bindTexture(gl.TEXTURE_2D, Screen.textures[0] = gl.createTexture());
      gl.texImage2D(gl.TEXTURE_2D, 0, gl.RGBA, 1, 1, 0, gl.RGBA, gl.UNSIGNED_BYTE, new Uint8Array([255, 255, 255, 255]));
      gl.texParameteri(gl.TEXTURE_2D, gl.TEXTURE_MIN_FILTER, gl.LINEAR);
      Screen.program = program;
    },

    close: function () {
      var gl = Module['gl'];
      for (var texture in Screen.textures)
        gl.deleteTexture(Screen.textures[texture]);
      gl.deleteBuffer(Screen.corners);
      gl.deleteBuffer(Screen.indices);
      gl.deleteProgram(Screen.program);
    }
  },

  webClear: function () {
    var gl = Module['gl'];
    gl.viewport(0, 0, gl.drawingBufferWidth, gl.drawingBufferHeight);
    gl.clear(gl.COLOR_BUFFER_BIT);
  },

  webDraw__deps: ['$Screen'],
  webDraw: function (corners, cornerCount, indices, indexCount, batches, batchCount) {
    var gl = Module['gl'];
    gl.bufferData(gl.ARRAY_BUFFER, HEAPU8.subarray(corners, corners + cornerCount * 20), gl.STREAM_DRAW);
    gl.bufferData(gl.ELEMENT_ARRAY_BUFFER, HEAPU8.subarray(indices, indices + indexCount * 2), gl.STREAM_DRAW);
    for (var i = 0, offset = 0; i < batchCount; ++i) {
      var count = HEAPU32[(batches >> 2) + 2 * i + 1];
      gl.bindTexture(gl.TEXTURE_2D, Screen.textures[HEAPU32[(batches >> 2) + 2 * i]] || Screen.textures[0]);
      gl.drawElements(gl.TRIANGLES, count, gl.UNSIGNED_SHORT, offset);
      offset += count * 2;
    }
  },

  webUpload__deps: ['$Screen'],
  webUpload: function (texture, level, width, height, pixels) {
    var gl = Module['gl'];
    gl.bindTexture(gl.TEXTURE_2D, Screen.textures[texture] = Screen.textures[texture] || gl.createTexture());
    gl.texImage2D(gl.TEXTURE_2D, level, gl.RGBA, width, height, 0, gl.RGBA, gl.UNSIGNED_BYTE,
      HEAPU8.subarray(pixels, pixels + width * height * 4));
  },

  webFilter__deps: ['$Screen'],
  webFilter: function (texture, name, value) {
    var gl = Module['gl'];
    gl.bindTexture(gl.TEXTURE_2D, Screen.textures[texture]);
    gl.texParameteri(gl.TEXTURE_2D, name, value);
  },

  // WebGL hands the pixels over as they are in the file; a 2-D canvas would lose the colours of transparent ones.
  webPicture__deps: ['malloc'],
  webPicture: function (path, width, height) {
    var gl = Module['gl'];
    var image = Module['pictures'][UTF8ToString(path)];
    if (!image)
      return 0;
    var w = image.naturalWidth;
    var h = image.naturalHeight;
    var texture = gl.createTexture();
    var frame = gl.createFramebuffer();
    gl.bindTexture(gl.TEXTURE_2D, texture);
    gl.pixelStorei(gl.UNPACK_COLORSPACE_CONVERSION_WEBGL, gl.NONE);
    gl.texImage2D(gl.TEXTURE_2D, 0, gl.RGBA, gl.RGBA, gl.UNSIGNED_BYTE, image);
    gl.bindFramebuffer(gl.FRAMEBUFFER, frame);
    gl.framebufferTexture2D(gl.FRAMEBUFFER, gl.COLOR_ATTACHMENT0, gl.TEXTURE_2D, texture, 0);
    var pixels = _malloc(w * h * 4);
    gl.readPixels(0, 0, w, h, gl.RGBA, gl.UNSIGNED_BYTE, HEAPU8.subarray(pixels, pixels + w * h * 4));
    gl.bindFramebuffer(gl.FRAMEBUFFER, null);
    gl.deleteFramebuffer(frame);
    gl.deleteTexture(texture);
    HEAP32[width >> 2] = w;
    HEAP32[height >> 2] = h;
    return pixels;
  },

  // The game takes 60 steps a second on every display. Each frame of the display says how many are due: one and the same
  // number wherever the display's pace allows it, for a step too many or too few is seen as a judder.
  $Clock: {
    STEP: 1000 / 60, // milliseconds
    MOST: 5, // steps for one frame: what is later still is not made up, or a slow machine would be ever later
    interval: 1000 / 60, // of the display's frames, in milliseconds
    last: null, // when the display showed its last frame
    owed: 0, // steps, and the part of one

    // The steps for one frame of the display. Displays of 59.94 or 119.88 hertz are taken for what they are sold as.
    perFrame: function () {
      var steps = Clock.interval / Clock.STEP;
      var simple = steps > 1 ? Math.round(steps) : 1 / Math.round(1 / steps);
      return Math.abs(steps / simple - 1) < 0.01 ? simple : steps;
    },

    // How many steps are due at a frame of this time. Times of frames are inexact, and some frames are left out: so
    // frames are counted, and only what fits no number of them is measured by the clock.
    due: function (now) {
      var passed = Clock.last === null ? Clock.STEP : Math.max(0, now - Clock.last);
      Clock.last = now;
      var frames = Math.max(1, Math.round(passed / Clock.interval));
      var even = Math.abs(passed - frames * Clock.interval) < Clock.interval / 3;
      Clock.interval += (passed / frames - Clock.interval) / 32;
      Clock.owed += even ? frames * Clock.perFrame() : passed / Clock.STEP;
      var steps = Math.floor(Clock.owed + 1e-6);
      Clock.owed -= steps;
      return Math.min(steps, Clock.MOST);
    },

    wait: function (wake) {
      requestAnimationFrame(function (now) {
        var steps = Clock.due(now);
        if (steps > 0)
          wake(steps);
        else
          Clock.wait(wake);
      });
    }
  },

  webNextFrame__deps: ['$Clock'],
  webNextFrame: function () {
    return Asyncify.handleSleep(Clock.wait);
  },

  // The numbers of events and keys are those of SDL's headers.
  $Input__deps: ['$Sound'],
  $Input: {
    KEY: 0x300, MOTION: 0x400, DOWN: 0x401, UP: 0x402,
    queue: [],

    push: function (type, which, event) {
      var area = Module['gl'].canvas.getBoundingClientRect();
      Input.queue.push(event
        ? [type, which, (event.clientX - area.left) * 1024 / area.width, (event.clientY - area.top) * 768 / area.height]
        : [type, which, 0, 0]);
    },

    // What the browser or the page's own buttons need a key for, the game doesn't get.
    key: function (event) {
      var forOthers = event.ctrlKey || event.altKey || event.metaKey || /^(Tab|F\d+)$/.test(event.key);
      if (forOthers || event.target.closest && event.target.closest('a, button'))
        return;
      event.preventDefault();
      if (!event.repeat)
        Input.push(Input.KEY, event.key === 'Escape' ? 27 : event.key.length === 1 ? event.key.toLowerCase().charCodeAt(0) : 0);
    },

    // A finger is the left button; a second one is not heard. The second button of a mouse that holds one comes as a
    // motion.
    pointer: function (event) {
      if (!event.isPrimary)
        return;
      Input.push(Input.MOTION, 0, event);
      if (event.type === 'pointerdown') {
        event.target.setPointerCapture(event.pointerId);
        event.target.focus({preventScroll: true});
        Input.push(Input.DOWN, event.button + 1, event);
      } else if (event.type !== 'pointermove') {
        Input.push(Input.UP, event.button + 1, event);
      }
    },

    open: function () {
      var canvas = Module['gl'].canvas;
      var events = Input.events = new AbortController();
      function listen(target, names, heard) {
        names.split(' ').forEach(function (name) {
          target.addEventListener(name, heard, {signal: events.signal, passive: false});
        });
      }
      listen(window, 'keydown', Input.key);
      listen(canvas, 'pointermove pointerdown pointerup pointercancel', Input.pointer);
      listen(canvas, 'wheel', function (event) {
        var button = event.deltaY < 0 ? 4 : 5;
        Input.push(Input.DOWN, button, event);
        Input.push(Input.UP, button, event);
      });
      listen(canvas, 'wheel contextmenu', function (event) { event.preventDefault(); });
      listen(document, 'visibilitychange', Sound.heed);
    }
  },

  webInput__deps: ['$Input'],
  webInput: function (input) {
    var next = Input.queue.shift();
    if (!next)
      return 0;
    HEAP32.set(next, input >> 2);
    return 1;
  },

  webOpen__deps: ['$Screen', '$Input'],
  webOpen: function () {
    Screen.open();
    Input.open();
    Module['press'] = function (key) { Input.push(Input.KEY, key); };
  },

  webClose__deps: ['$Screen', '$Input'],
  webClose: function () {
    Input.events.abort();
    Screen.close();
    Module['closed']();
  },

  $Sound: {
    FULL: 128,
    paths: [''],
    channels: [],
    volume: 128, // of the music

    channel: function (i) {
      if (!Sound.channels[i]) {
        var volume = Module['audio'].createGain();
        volume.connect(Module['speaker']);
        Sound.channels[i] = {volume: volume, source: null};
      }
      return Sound.channels[i];
    },

    stop: function (channel) {
      if (channel.source)
        channel.source.stop();
      channel.source = null;
    },

    // Lets the music rise from silence to its volume within so many seconds.
    fade: function (seconds) {
      var now = Module['audio'].currentTime;
      var gain = Module['musicVolume'].gain;
      gain.cancelScheduledValues(now);
      gain.setValueAtTime(seconds > 0 ? 0 : Sound.volume / Sound.FULL, now);
      gain.linearRampToValueAtTime(Sound.volume / Sound.FULL, now + seconds);
    },

    // A piece that can't be played leaves the game without music, as a missing file does elsewhere. One that is
    // interrupted, by the next or by a page that is left, is no fault.
    play: function () {
      Module['music'].play().catch(function (error) {
        if (error.name !== 'AbortError')
          console.warn('The music can\'t be played: ' + error.message);
      });
    },

    // Nobody listens to a page that can't be seen.
    heed: function () {
      if (document.hidden) {
        Module['audio'].suspend();
        Module['music'].pause();
      } else {
        Module['audio'].resume();
        Sound.play();
      }
    }
  },

  webSound__deps: ['$Sound'],
  webSound: function (path) {
    var name = UTF8ToString(path);
    return Module['sounds'][name] ? Sound.paths.push(name) - 1 : 0;
  },

  webPlay__deps: ['$Sound'],
  webPlay: function (wanted, sound) {
    var CHANNELS = 10;
    var i = wanted;
    if (i < 0)
      for (i = 0; i < CHANNELS && Sound.channel(i).source; ++i)
        ;
    if (i === CHANNELS || !sound)
      return -1;
    var channel = Sound.channel(i);
    Sound.stop(channel);
    var source = channel.source = Module['audio'].createBufferSource();
    source.buffer = Module['sounds'][Sound.paths[sound]];
    source.connect(channel.volume);
    source.onended = function () {
      if (channel.source === source)
        channel.source = null;
    };
    source.start();
    return i;
  },

  webChannelVolume__deps: ['$Sound'],
  webChannelVolume: function (channel, volume) { Sound.channel(channel).volume.gain.value = volume / Sound.FULL; },

  webMusic__deps: ['$Sound'],
  webMusic: function (path) { return Sound.paths.push(UTF8ToString(path)) - 1; },

  webPlayMusic__deps: ['$Sound'],
  webPlayMusic: function (music, fadeIn) {
    Module['music'].src = Module['address'](Sound.paths[music]);
    Sound.fade(fadeIn / 1000);
    Sound.play();
  },

  webMusicVolume__deps: ['$Sound'],
  webMusicVolume: function (volume) {
    Sound.volume = volume;
    Sound.fade(0);
  },

  webSilence__deps: ['$Sound'],
  webSilence: function () {
    Sound.channels.forEach(function (channel) {
      Sound.stop(channel);
      channel.volume.disconnect();
    });
    Module['music'].pause();
  }
});
