// All sound. The page opens and suspends it; the program says what to play. Volumes are from 0 to 1, and places of
// files are the paths that the game uses.

const NAME = 'vorel-defense.sound'; // under this name the browser remembers whether the player wants sound

const sounds = new Map(); // place: decoded sound
let channels = []; // {volume, source: what it plays or played last, end: when that ends}
let track = {place: '', seconds: 0}; // the music that the game wants, if any, and where it is when it does not play
let musicVolume = 1;

// Only while sound is open; there is none in a browser that can't open it, and then the game is silent.
let context;
let speaker; // the node that all sound goes to
let music; // the one player of all music
let musicNode;


// A browser may refuse to store anything; then it throws an error.
function remembered() {
  try {
    return localStorage.getItem(NAME);
  } catch {
    return null;
  }
}

let on = remembered() !== 'off';


export function isOn() {
  return on;
}


export function setOn(wanted) {
  on = wanted;
  if (context) {
    speaker.gain.value = on ? 1 : 0;
    stopMusic();
    startMusic();
  }
  try {
    localStorage.setItem(NAME, on ? 'on' : 'off');
  } catch {
    // The choice is not remembered.
  }
}


// A browser lets a page make sound only after a press, and some browsers allow only what exists at that moment. So this
// is called in response to a press, and opens everything at once. What was open before is given up: after a call, or
// some time in the background, some phones never bring it back, and don't say so.
export function open() {
  suspend();
  // The game plays alongside what the player listens to, and the switch on a phone's side silences it.
  if (navigator.audioSession)
    navigator.audioSession.type = 'ambient';
  try {
    context = new AudioContext();
    speaker = new GainNode(context, {gain: on ? 1 : 0});
    speaker.connect(context.destination);
    musicNode = new GainNode(context, {gain: musicVolume});
    musicNode.connect(speaker);
    // A player stays with the context that it was connected to.
    music = new Audio();
    // In a sandbox every file is another origin's, and silent if it is not asked for in this way.
    music.crossOrigin = 'anonymous';
    music.loop = true;
    music.load();
    context.createMediaElementSource(music).connect(musicNode);
    wake();
  } catch (error) {
    context = undefined;
    console.warn(`Nothing can be heard: ${error.message}`);
  }
}


// Nothing is heard until sound is opened again. The music will go on from where it is.
export function suspend() {
  if (!context)
    return;
  stopMusic();
  warnOfFailure(context.close());
  context = undefined;
  for (const channel of channels)
    Object.assign(channel, {source: null, end: 0});
}


// If a browser doesn't allow it now, it may at the next press, so that is not worth a warning.
function warnOfFailure(promise) {
  promise.catch(error => {
    if (!['AbortError', 'NotAllowedError', 'InvalidStateError'].includes(error.name))
      console.warn(`Something can't be heard: ${error.message}`);
  });
}


// Called at every press, because another program may have taken the sound away, or the line the music.
export function wake() {
  if (!context)
    return;
  if (context.state !== 'running')
    warnOfFailure(context.resume());
  startMusic();
}


// Music that nobody wants to hear is not fetched. After an error it is asked for again.
function startMusic() {
  if (!track.place || !on)
    return;
  const {error} = music;
  if (error)
    stopMusic();
  // Some browsers can't begin in the middle if the server only sends whole files.
  if (error?.code === MediaError.MEDIA_ERR_SRC_NOT_SUPPORTED)
    track.seconds = 0;
  if (!music.getAttribute('src')) {
    music.src = track.place;
    music.currentTime = track.seconds;
  }
  if (music.paused)
    warnOfFailure(music.play());
}


// Ends its request too.
function stopMusic() {
  if (music.getAttribute('src'))
    track.seconds = music.currentTime;
  music.pause();
  music.removeAttribute('src');
  music.load();
}


// Works even before the browser allows any sound.
export async function add(place, bytes) {
  sounds.set(place, await new OfflineAudioContext(2, 1, 44100).decodeAudioData(bytes));
}


export function setChannels(count) {
  channels = Array.from({length: count}, () => ({volume: 1, source: null, end: 0}));
}


// Of what the channel plays from now on.
export function setChannelVolume(channel, volume) {
  channels[channel].volume = volume;
}


// Plays a sound on the given channel, or on the first free one for -1; returns the channel, -1 if there is none.
export function play(wanted, place) {
  const sound = sounds.get(place);
  // A sound that can't be heard now is dropped; otherwise all of them would play at once later.
  if (!sound || context?.state !== 'running')
    return -1;
  const now = context.currentTime;
  const number = wanted < 0 ? channels.findIndex(({end}) => end <= now) : wanted;
  if (number < 0)
    return -1;
  const channel = channels[number];
  channel.source?.stop();
  channel.source = new AudioBufferSourceNode(context, {buffer: sound});
  channel.source.connect(new GainNode(context, {gain: channel.volume})).connect(speaker);
  channel.source.start();
  channel.end = now + sound.duration;
  return number;
}


// Plays a piece of music in a loop from its beginning; it fades in for `fadeIn` seconds.
export function playMusic(place, fadeIn) {
  if (context)
    stopMusic();
  track = {place, seconds: 0};
  if (context) {
    fadeMusic(fadeIn);
    startMusic();
  }
}


export function setMusicVolume(volume) {
  musicVolume = volume;
  if (context)
    fadeMusic(0);
}


function fadeMusic(seconds) {
  const now = context.currentTime;
  const {gain} = musicNode;
  gain.cancelScheduledValues(now);
  gain.setValueAtTime(seconds > 0 ? 0 : musicVolume, now);
  gain.linearRampToValueAtTime(musicVolume, now + seconds);
}


// Ends all sounds and music.
export function silence() {
  for (const {source} of channels)
    source?.stop();
  channels = [];
  if (context)
    stopMusic();
  track.place = '';
}
