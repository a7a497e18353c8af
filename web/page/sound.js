// All sound. The page opens it, wakes it and lets it rest; the program says what to play. Volumes are from 0 to 1, and
// places of files are the paths that the game uses.

const NAME = 'vorel-defense.sound'; // under this name the browser remembers whether the player wants sound
const build = new URL(import.meta.url).search;

const sounds = new Map(); // place: decoded sound
let channels = []; // {volume: its gain node, source: what it plays or played last, end: when that ends}
let context; // none before the first press, nor in a browser that can't open sound: then the game is silent
let speaker; // the node that all sound goes to
let music; // the one player of all music
let musicNode;
let musicVolume = 1;
let playing = false; // whether the game wants music to play
let awake = false;


// A browser may refuse to store anything; then it throws an error.
function remembered() {
  try {
    return localStorage.getItem(NAME);
  } catch {
    return null;
  }
}

let off = remembered() === 'off';


export function isOn() {
  return !off;
}


export function setOn(on) {
  off = !on;
  if (speaker)
    speaker.gain.value = off ? 0 : 1;
  try {
    localStorage.setItem(NAME, on ? 'on' : 'off');
  } catch {
    // The choice is not remembered.
  }
}


// A browser lets a page make sound only after a press, and some browsers allow only what exists at that moment. So this
// is called in response to a press, and opens everything at once.
export function open() {
  if (context)
    return;
  // The game plays alongside what the player listens to, and the switch on a phone's side silences it.
  if (navigator.audioSession)
    navigator.audioSession.type = 'ambient';
  try {
    context = new AudioContext();
    speaker = context.createGain();
    speaker.gain.value = off ? 0 : 1;
    speaker.connect(context.destination);
    music = new Audio();
    music.loop = true;
    music.load();
    musicNode = context.createGain();
    musicNode.connect(speaker);
    context.createMediaElementSource(music).connect(musicNode);
    context.onstatechange = () => awake && wake();
  } catch (error) {
    context = undefined;
    console.warn(`Nothing can be heard: ${error.message}`);
  }
}


// If a browser doesn't allow this now, it may allow it at the next press.
function ask(promise) {
  promise.catch(error => {
    if (!['AbortError', 'NotAllowedError', 'InvalidStateError'].includes(error.name))
      console.warn(`Something can't be heard: ${error.message}`);
  });
}


// Called at every press, because a phone call or another program may have taken the sound away. An interrupted context
// is suspended when the interruption is over. It must not be resumed before: its clock would stand still.
export function wake() {
  awake = true;
  if (!context)
    return;
  if (context.state === 'suspended')
    ask(context.resume());
  // The line may have broken while the music was on its way.
  if (playing && music.error?.code === MediaError.MEDIA_ERR_NETWORK)
    music.load();
  if (playing && music.paused && !music.error)
    ask(music.play());
}


export function rest() {
  awake = false;
  if (!context)
    return;
  ask(context.suspend());
  music.pause();
}


// Works even before the browser allows any sound.
export async function add(place, bytes) {
  sounds.set(place, await new OfflineAudioContext(2, 1, 44100).decodeAudioData(bytes));
}


export function setChannels(count) {
  if (!context)
    return;
  channels = Array.from({length: count}, () => {
    const volume = context.createGain();
    volume.connect(speaker);
    return {volume, source: null, end: 0};
  });
}


export function setChannelVolume(channel, volume) {
  if (context)
    channels[channel].volume.gain.value = volume;
}


// Plays a sound on the given channel, or on the first free one for -1; returns the channel, -1 if there is none.
export function play(wanted, place) {
  if (!context)
    return -1;
  const sound = sounds.get(place);
  const now = context.currentTime;
  const number = wanted < 0 ? channels.findIndex(channel => channel.end <= now) : wanted;
  // A sound that can't be heard now is dropped; otherwise all of them would play at once later.
  if (!sound || number < 0 || context.state !== 'running')
    return -1;
  const channel = channels[number];
  channel.source?.stop();
  channel.source = context.createBufferSource();
  channel.source.buffer = sound;
  channel.source.connect(channel.volume);
  channel.source.start();
  channel.end = now + sound.duration;
  return number;
}


// Plays a piece of music in a loop from its beginning; it fades in for `fadeIn` seconds.
export function playMusic(place, fadeIn) {
  if (!context)
    return;
  music.src = place + build;
  playing = true;
  fadeMusic(fadeIn);
  if (awake)
    wake();
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
  for (const {source, volume} of channels) {
    source?.stop();
    volume.disconnect();
  }
  channels = [];
  playing = false;
  music?.pause();
}
