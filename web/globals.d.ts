// What scripts find in their places that no script of ours declares, for tools that check them.

// In port.js, and in what stands before the program: Emscripten's, and what port.js hands to it.
declare const LibraryManager: any, Module: any, Asyncify: any;
declare const HEAPU8: Uint8Array, HEAP32: Int32Array, HEAPU32: Uint32Array, HEAPF32: Float32Array;
declare function mergeInto(library: any, members: object): void;
declare const places: string[];
declare function UTF8ToString(address: number): string;
declare function _malloc(bytes: number): number;
declare module '*/vorel-defense.js' {
  export default function start(module: object): Promise<any>;
}

// Newer than the lists of some compilers.
interface Navigator {
  audioSession?: {type: string};
}

// The checks', and node's for them.
interface Window {
  watch: any;
  AudioContext: any;
}
declare const watch: any;
declare module 'node:assert/strict';
declare module 'node:test';
