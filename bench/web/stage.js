// The scene that the stage shows in the browser: the one that the page's address names, or the busy one. Its grunts
// enter where they do on the desktop.
Module['arguments'] = [new URLSearchParams(location.search).get('scene') || 'busy', '1000000'];

let entranceClock = 0; // in milliseconds
Date.now = () => entranceClock += 3514;
