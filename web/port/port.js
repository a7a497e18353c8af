// Passes what the port asks of the browser on to the page's scripts; port.h says what each function promises.

mergeInto(LibraryManager.library, {
  webOpen: function (width, height) { Module['open'](width, height); },

  webClose: function () { Module['close'](); },

  webClear: function () { Module['graphics'].begin(); },

  webDraw: function (corners, bytes, batches, batchCount) {
    Module['graphics'].draw(HEAPU8.subarray(corners, corners + bytes),
      HEAPU32.subarray(batches >> 2, (batches >> 2) + batchCount * 2));
  },

  webPicture: function (path) { return Module['graphics'].picture(UTF8ToString(path)); },

  webNextFrame: function () { return Asyncify.handleSleep(Module['nextFrame']); },

  webInput: function (input) {
    var next = Module['input'].next();
    if (!next)
      return 0;
    HEAP32.set(next, input >> 2);
    return 1;
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
