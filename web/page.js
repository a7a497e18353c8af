// The page around the game: loads its files, starts it on a click, and keeps the canvas as large and as sharp as the
// window allows.

const element = id => document.getElementById(id);
const [canvas, front, bar, message, progress, start] =
  ['canvas', 'front', 'bar', 'message', 'progress', 'start'].map(element);

const files = JSON.parse(element('files').textContent); // path: bytes
const welcome = message.textContent;
const build = new URL(import.meta.url).search.slice(1);
const loaded = {};
const arrived = {}; // path: bytes
let gl;
let audio;
let speaker;
let music;
let musicVolume;
let game;


// Under a name of its own for each build of the game, so that no two are mixed.
const address = path => `${path}?${build}`;


function say(words, button) {
  message.textContent = words;
  message.setAttribute('role', 'alert');
  progress.hidden = true;
  start.hidden = !button;
  start.textContent = button || '';
  start.disabled = false;
}


// The game draws each frame as a whole, and nothing behind it is seen.
function openCanvas() {
  const options = {alpha: false, antialias: false, depth: false, stencil: false};
  // Without a graphics card each pixel is dear, so there the canvas never gets more of them than the game's own window.
  gl = canvas.getContext('webgl', {...options, failIfMajorPerformanceCaveat: true});
  const quick = Boolean(gl);
  gl = gl || canvas.getContext('webgl', options);
  if (!gl)
    return false;
  canvas.addEventListener('webglcontextlost', () => {
    say('The browser took the graphics away, perhaps for another program.', 'Load again');
    start.onclick = () => location.reload();
    front.hidden = false;
  });

  // The pictures have two pixels for each of the window: more than that would show nothing new.
  const widest = quick ? 2048 : 1024;
  new ResizeObserver(() => {
    const {width} = canvas.getBoundingClientRect();
    canvas.width = Math.max(1, Math.min(widest, Math.round(width * devicePixelRatio)));
    canvas.height = Math.max(1, Math.round(canvas.width * 3 / 4));
  }).observe(canvas);
  return true;
}


async function fetchBytes(path) {
  const response = await fetch(address(path));
  if (!response.ok)
    throw new Error(`the server answered ${response.status}`);
  const reader = response.body.getReader();
  const parts = [];
  arrived[path] = 0;
  for (let part = await reader.read(); !part.done; part = await reader.read()) {
    parts.push(part.value);
    arrived[path] += part.value.length;
    progress.value = Object.values(arrived).reduce((sum, bytes) => sum + bytes, 0);
  }
  return new Blob(parts, {type: response.headers.get('content-type')});
}


async function picture(blob) {
  const image = new Image();
  image.src = URL.createObjectURL(blob);
  await image.decode();
  URL.revokeObjectURL(image.src);
  return image;
}


// Sounds can be made ready before the browser allows any to be heard.
async function sound(blob) {
  return new OfflineAudioContext(2, 1, 44100).decodeAudioData(await blob.arrayBuffer());
}


// The music is not among the files: it is fetched while it plays.
async function load(path) {
  if (loaded[path])
    return;
  try {
    const blob = await fetchBytes(path);
    loaded[path] = await (path.endsWith('.wasm') ? blob.arrayBuffer().then(bytes => WebAssembly.compile(bytes))
      : path.endsWith('.js') ? script(blob)
      : path.endsWith('.wav') ? sound(blob)
      : picture(blob));
  } catch (error) {
    throw new Error(`${path} did not arrive: ${error.message}.`);
  }
}


function script(blob) {
  return new Promise((resolve, reject) => {
    const code = document.createElement('script');
    code.src = URL.createObjectURL(blob);
    code.onload = () => resolve(true);
    code.onerror = () => reject(new Error('it is no script'));
    document.head.append(code);
  });
}


async function loadAll() {
  progress.max = Object.values(files).reduce((sum, bytes) => sum + bytes, 0);
  message.textContent = welcome;
  progress.hidden = false;
  start.disabled = true;
  start.textContent = 'Loading…';
  const results = await Promise.allSettled(Object.keys(files).map(load));
  const failed = results.find(result => result.status === 'rejected');
  if (failed) {
    say(failed.reason.message, 'Try again');
    start.onclick = loadAll;
    return;
  }
  progress.hidden = true;
  start.disabled = false;
  start.textContent = 'Play';
  start.onclick = play;
  start.focus();
}


// Only a click lets a page be heard, and in some browsers only what it finds there: so the music has one player for all
// pieces, which is woken here.
function openAudio() {
  audio = new AudioContext();
  speaker = audio.createGain();
  speaker.connect(audio.destination);
  music = new Audio();
  music.loop = true;
  music.load();
  musicVolume = audio.createGain();
  musicVolume.connect(speaker);
  audio.createMediaElementSource(music).connect(musicVolume);
}


function play() {
  if (!audio)
    openAudio();
  audio.resume();

  front.hidden = true;
  bar.hidden = false;
  canvas.focus();
  game = {
    gl, audio, speaker, music, musicVolume, address,
    pictures: loaded,
    sounds: loaded,
    instantiateWasm(imports, ready) {
      WebAssembly.instantiate(loaded['vorel-defense.wasm'], imports).then(ready);
      return {};
    },
    press() {}, // until its window is open
    closed: () => end('Thank you for playing.')
  };
  VorelDefense(game);
}


function end(words) {
  say(words, 'Play again');
  start.onclick = play;
  bar.hidden = true;
  front.hidden = false;
  start.focus();
  audio.suspend();
  if (document.fullscreenElement)
    document.exitFullscreen();
}


// A browser may refuse; then the window stays as it is.
function fillScreen() {
  const done = document.fullscreenElement ? document.exitFullscreen() : document.documentElement.requestFullscreen();
  done.catch(() => {});
}


// A button does its work and gives the canvas its keyboard back.
function onPress(id, deed) {
  element(id).addEventListener('click', () => {
    deed(element(id));
    canvas.focus();
  });
}

const toggle = (button, on) => button.setAttribute('aria-pressed', on);

onPress('pause', () => game.press(' '.charCodeAt(0)));
onPress('restart', () => game.press('r'.charCodeAt(0)));
onPress('sound', button => {
  speaker.gain.value = 1 - speaker.gain.value;
  toggle(button, speaker.gain.value === 1);
});
onPress('full', fillScreen);
document.addEventListener('fullscreenchange', () => toggle(element('full'), Boolean(document.fullscreenElement)));
element('full').hidden = !document.fullscreenEnabled;

for (const fault of ['error', 'unhandledrejection'])
  window.addEventListener(fault, event => {
    // Some browsers report as an error, without a cause, what is only a remark.
    if (!event.error && !event.reason)
      return;
    say('The game stopped by itself. That is a fault of ours: please tell us what you did.', 'Load again');
    start.onclick = () => location.reload();
    front.hidden = false;
  });

// A phone that rings takes the sound away; the next touch brings it back.
canvas.addEventListener('pointerdown', () => audio && audio.resume());

if (!openCanvas())
  say('This browser shows no WebGL, which the game is drawn with. It may be switched off in the browser\'s settings.');
else if (typeof WebAssembly !== 'object')
  say('This browser runs no WebAssembly, which the game is made of. Any current one will do.');
else
  loadAll();
