// The page's first script, in a language that any browser understands. Loads the others, or says why they can't run
// here.
(function () {
  var play = document.getElementById('play');
  var reload = document.getElementById('reload');
  var progress = document.getElementById('progress');
  var script = document.createElement('script');

  function say(words) {
    document.getElementById('message').textContent = words;
    play.hidden = true;
    progress.hidden = true;
  }

  if (location.protocol === 'file:') {
    say('Opened as a file, this page can\'t load the game. Please open it from a web server.');
    return;
  }
  if (!('noModule' in script) || !Array.prototype.at || !window.HTMLDialogElement) {
    say('This browser is too old for the game. Any current one will do.');
    return;
  }
  try {
    // The smallest program that there is. Some browsers know WebAssembly, but not how a page allows it.
    new WebAssembly.Module(new Uint8Array([0, 97, 115, 109, 1, 0, 0, 0]));
  } catch (error) {
    say('This browser offers no WebAssembly to the page, and the game needs that. Any current browser will do.');
    return;
  }
  play.hidden = false;
  progress.hidden = false;
  reload.onclick = function () { location.reload(); };
  script.type = 'module';
  script.src = 'page.js';
  script.onerror = function () {
    say('The page did not load completely: one of its scripts did not arrive.');
    reload.hidden = false;
  };
  document.head.appendChild(script);
})();
