// What only the browser can do for the port; port.h says what each function promises.
//
// The page passes these fields of Module: gl (the canvas's WebGL context), sharpness (how many pixels the canvas may
// have for each of the game's), pictures (by path: width, height and pixels), sound (the functions of sound.js) and
// three callbacks: shown, when the first frame has been drawn; failed, with the error that stopped the program; closed,
// when the game has ended. The port adds what the page may call once the game is shown: press(key), rest(), goOn(),
// halt().

mergeInto(LibraryManager.library, {
  $Screen: {
    textures: {},
    width: 0, // of the game's window, in its pixels
    height: 0,
    area: null, // of the canvas, in pixels of the page

    // One program draws everything: a picture tinted by a colour.
    open: function (width, height) {
      var gl = Module['gl'];
      Screen.width = width;
      Screen.height = height;
      Screen.area = gl.canvas.getBoundingClientRect();
      Screen.observer = new ResizeObserver(function (changes) { Screen.area = changes[changes.length - 1].contentRect; });
      Screen.observer.observe(gl.canvas);

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
        gl.deleteShader(shader); // with the program
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

    // Gives the canvas as many pixels as the page shows, up to what the pictures and the machine allow. A resized
    // canvas is black until it is drawn on, so this is done at the beginning of a frame.
    fit: function () {
      var gl = Module['gl'];
      var scale = Math.min(devicePixelRatio, Module['sharpness'] * Screen.width / Screen.area.width);
      var width = Math.max(1, Math.round(Screen.area.width * scale));
      var height = Math.max(1, Math.round(Screen.area.height * scale));
      if (gl.canvas.width === width && gl.canvas.height === height)
        return;
      gl.canvas.width = width;
      gl.canvas.height = height;
      gl.viewport(0, 0, gl.drawingBufferWidth, gl.drawingBufferHeight);
    },

    close: function () {
      var gl = Module['gl'];
      Screen.observer.disconnect();
      for (var texture in Screen.textures)
        gl.deleteTexture(Screen.textures[texture]);
      gl.deleteBuffer(Screen.corners);
      gl.deleteBuffer(Screen.indices);
      gl.deleteProgram(Screen.program);
    }
  },

  webClear__deps: ['$Screen'],
  webClear: function () {
    var gl = Module['gl'];
    Screen.fit();
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
  webUpload: function (texture, width, height, pixels, mipmaps) {
    var gl = Module['gl'];
    gl.bindTexture(gl.TEXTURE_2D, Screen.textures[texture] = Screen.textures[texture] || gl.createTexture());
    gl.texImage2D(gl.TEXTURE_2D, 0, gl.RGBA, width, height, 0, gl.RGBA, gl.UNSIGNED_BYTE,
      HEAPU8.subarray(pixels, pixels + width * height * 4));
    if (mipmaps)
      gl.generateMipmap(gl.TEXTURE_2D);
  },

  webFilter__deps: ['$Screen'],
  webFilter: function (texture, name, value) {
    var gl = Module['gl'];
    gl.bindTexture(gl.TEXTURE_2D, Screen.textures[texture]);
    gl.texParameteri(gl.TEXTURE_2D, name, value);
  },

  webPicture__deps: ['malloc'],
  webPicture: function (path, width, height) {
    var picture = Module['pictures'][UTF8ToString(path)];
    if (!picture)
      return 0;
    var pixels = _malloc(picture.pixels.length);
    HEAPU8.set(picture.pixels, pixels);
    HEAP32[width >> 2] = picture.width;
    HEAP32[height >> 2] = picture.height;
    return pixels;
  },

  // The game takes 60 steps a second on every display. For each frame of the display this counts the steps that are
  // due: always the same number where the display's pace allows it, because a step too many or too few looks like a
  // judder.
  $Clock: {
    STEP: 1000 / 60, // milliseconds
    MOST: 5, // steps for one frame: more are not caught up, or a slow machine would fall further and further behind
    interval: 1000 / 60, // of the display's frames, in milliseconds
    last: null, // when the display showed its last frame
    owed: 0, // steps, with a fraction

    // The steps for one frame of the display. Displays of 59.94 or 119.88 hertz count as what they are sold as.
    perFrame: function () {
      var steps = Clock.interval / Clock.STEP;
      var simple = steps > 1 ? Math.round(steps) : 1 / Math.round(1 / steps);
      return Math.abs(steps / simple - 1) < 0.01 ? simple : steps;
    },

    // How many steps are due at a frame of this time. Times of frames are inexact, and some frames are left out. So
    // frames are counted, and only a time that fits no number of them is measured by the clock.
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

    wake: null, // resumes the game, which waits for its next step
    request: 0, // for a frame of the display
    resting: false,

    wait: function (wake) {
      var first = !Clock.wake;
      Clock.wake = wake;
      Clock.ask();
      if (first)
        Module['shown']();
    },

    ask: function () { Clock.request = requestAnimationFrame(Clock.frame); },

    frame: function (now) {
      var steps = Clock.due(now);
      if (steps === 0) {
        Clock.ask();
        return;
      }
      try {
        Clock.wake(steps);
      } catch (error) {
        Module['failed'](error);
      }
    },

    rest: function () {
      cancelAnimationFrame(Clock.request);
      Clock.resting = true;
    },

    goOn: function () {
      Clock.resting = false;
      Clock.last = null;
      Clock.ask();
    }
  },

  webNextFrame__deps: ['$Clock'],
  webNextFrame: function () {
    return Asyncify.handleSleep(Clock.wait);
  },

  // The numbers of events and keys are those of SDL's headers.
  $Input__deps: ['$Clock', '$Screen'],
  $Input: {
    KEY: 0x300, MOTION: 0x400, DOWN: 0x401, UP: 0x402,
    BUTTONS: [[1, 1], [4, 2], [2, 3]], // each one's bit in the browser, and its number
    ESCAPE: 27,
    queue: [],
    held: null, // the pointer that holds the canvas
    buttons: 0, // those of that pointer that are down: the browser's bits

    push: function (type, which, event) {
      if (Clock.resting)
        return;
      var area = Module['gl'].canvas.getBoundingClientRect();
      Input.queue.push(event
        ? [type, which, (event.clientX - area.left) * Screen.width / area.width,
          (event.clientY - area.top) * Screen.height / area.height]
        : [type, which, 0, 0]);
    },

    // The character on a key; where a layout has no Latin letters, the one that other keyboards have there.
    character: function (event) {
      var place = /^Key([A-Z])$/.exec(event.code);
      if (/^[ -~]$/.test(event.key))
        return event.key.toLowerCase().charCodeAt(0);
      if (event.code === 'Space')
        return 32;
      return place ? place[1].toLowerCase().charCodeAt(0) : 0;
    },

    // The game gets no keys that the browser or the page's own buttons need, nor the Escape that leaves the full
    // screen.
    key: function (event) {
      var escape = event.key === 'Escape';
      var forOthers = Clock.resting || event.ctrlKey || event.altKey || event.metaKey || /^(Tab|F\d+)$/.test(event.key) ||
        escape && document.fullscreenElement || event.target.closest && event.target.closest('a, button, dialog');
      if (forOthers)
        return;
      event.preventDefault();
      if (!event.repeat)
        Input.push(Input.KEY, escape ? Input.ESCAPE : Input.character(event));
    },

    // The canvas belongs to the first pointer that presses it, until that pointer has released all its buttons or is
    // gone. Other fingers are ignored meanwhile, on the canvas or beside it. A finger is the left button.
    pointer: function (event) {
      if (Input.held === null && event.type === 'pointerdown') {
        event.target.setPointerCapture(event.pointerId);
        event.target.focus({preventScroll: true});
        Input.held = event.pointerId;
      }
      var holds = Input.held === event.pointerId;
      var hovers = Input.held === null && event.type === 'pointermove' && event.pointerType !== 'touch';
      var taken = event.type === 'pointercancel' || event.type === 'lostpointercapture';
      if (!taken && (holds || hovers))
        Input.push(Input.MOTION, 0, event);
      if (holds)
        Input.press(taken ? 0 : event.buttons, event);
    },

    // A second mouse button arrives as a motion, so compare which buttons are down now.
    press: function (buttons, event) {
      Input.BUTTONS.forEach(function (button) {
        if ((Input.buttons ^ buttons) & button[0])
          Input.push(buttons & button[0] ? Input.DOWN : Input.UP, button[1], event);
      });
      Input.buttons = buttons;
      if (buttons === 0)
        Input.held = null;
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
      listen(canvas, 'pointermove pointerdown pointerup pointercancel lostpointercapture', Input.pointer);
      // With Ctrl, or with two fingers on a touchpad, it zooms the page.
      listen(canvas, 'wheel', function (event) {
        if (event.ctrlKey)
          return;
        event.preventDefault();
        var button = event.deltaY < 0 ? 4 : 5;
        Input.push(Input.DOWN, button, event);
        Input.push(Input.UP, button, event);
      });
      listen(canvas, 'contextmenu', function (event) { event.preventDefault(); });
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

  webOpen__deps: ['$Screen', '$Input', '$Clock'],
  webOpen: function (width, height) {
    Screen.open(width, height);
    Input.open();
    Module['press'] = function (key) { Input.push(Input.KEY, key.charCodeAt(0)); };
    Module['rest'] = function () {
      Input.press(0);
      Clock.rest();
    };
    Module['goOn'] = Clock.goOn;
    Module['halt'] = function () {
      Clock.rest();
      Input.events.abort();
    };
  },

  webClose__deps: ['$Screen', '$Input'],
  webClose: function () {
    Input.events.abort();
    Screen.close();
    Module['closed']();
  },

  $places: [''], // of sounds and music, by their numbers

  webSound__deps: ['$places'],
  webSound: function (path) { return places.push(UTF8ToString(path)) - 1; },

  webChannels: function (count) { Module['sound'].setChannels(count); },

  webPlay__deps: ['$places'],
  webPlay: function (channel, sound) { return Module['sound'].play(channel, places[sound]); },

  webChannelVolume: function (channel, volume) { Module['sound'].setChannelVolume(channel, volume); },

  webPlayMusic__deps: ['$places'],
  webPlayMusic: function (music, fadeIn) { Module['sound'].playMusic(places[music], fadeIn); },

  webMusicVolume: function (volume) { Module['sound'].setMusicVolume(volume); },

  webSilence: function () { Module['sound'].silence(); }
});
