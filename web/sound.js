// All that is heard. The page opens it, wakes it and lets it rest; the program says what is to be heard. Volumes are from
// 0 to 1, places of files those that the game knows.

const NAME = 'vorel-defense.sound'; // under which the browser remembers whether the player wants to hear it
const build = new URL(import.meta.url).search;

const sounds = new Map(); // place: what is played
let channels = []; // {volume: its node, source: what it plays or played last, end: when that is over}
let context;
let speaker; // the node that all goes to
let music; // the one player of all pieces
let musicNode;
let musicVolume = 1;
let playing = false; // a piece, as far as the game is concerned
let awake = false;


// A browser may keep nothing, and says so by an error.
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
    // Then it is not remembered.
  }
}


// Only a press lets a page be heard, and in some browsers only what that finds there: so this is called in the answer to
// one, and opens all at once.
export function open() {
  if (context)
    return;
  // The game may be heard beside what the player listens to, and the switch on a phone's side silences it.
  if (navigator.audioSession)
    navigator.audioSession.type = 'ambient';
  context = new AudioContext();
  context.onstatechange = () => awake && wake();
  speaker = context.createGain();
  speaker.gain.value = off ? 0 : 1;
  speaker.connect(context.destination);
  music = new Audio();
  music.loop = true;
  music.load();
  musicNode = context.createGain();
  musicNode.connect(speaker);
  context.createMediaElementSource(music).connect(musicNode);
}


// What a browser doesn't allow now, it may allow at the next press.
function ask(promise) {
  promise.catch(error => {
    if (!['AbortError', 'NotAllowedError', 'InvalidStateError'].includes(error.name))
      console.warn(`Something can't be heard: ${error.message}`);
  });
}


// Called at every press, as a call or another program may have taken the sound away. What such a thing has interrupted
// is suspended when it is over, and not before that it may be resumed: its clock would stand still.
export function wake() {
  awake = true;
  if (context.state === 'suspended')
    ask(context.resume());
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


// Can be done before the browser allows anything to be heard.
export async function add(place, bytes) {
  sounds.set(place, await new OfflineAudioContext(2, 1, 44100).decodeAudioData(bytes));
}


export function setChannels(count) {
  channels = Array.from({length: count}, () => {
    const volume = context.createGain();
    volume.connect(speaker);
    return {volume, source: null, end: 0};
  });
}


export function setChannelVolume(channel, volume) {
  channels[channel].volume.gain.value = volume;
}


// Plays a sound on the given channel, or on the first free one for -1; returns the channel, -1 if there is none.
export function play(wanted, place) {
  const sound = sounds.get(place);
  const now = context.currentTime;
  const number = wanted < 0 ? channels.findIndex(channel => channel.end <= now) : wanted;
  // What is not heard now is not kept for later, when all of it would come at once.
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


// Plays a piece again and again from its beginning; it takes so many seconds to reach its volume.
export function playMusic(place, fadeIn) {
  music.src = place + build;
  playing = true;
  fadeMusic(fadeIn);
  if (awake)
    wake();
}


export function setMusicVolume(volume) {
  musicVolume = volume;
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
