// The scene that the stage shows in the browser.
Module['arguments'] = ['busy', '1000000'];
