// All drawing: opens the canvas, keeps a texture for each picture, and shows the frames of the program.

const CORNER_BYTES = 20; // two numbers for the place, two for the place in the picture, four bytes for the colour
const WHITE = new Uint8Array([255, 255, 255, 255]);

const CORNER_SHADER = `#version 300 es
  layout(location = 0) in vec2 place;
  layout(location = 1) in vec2 texel;
  layout(location = 2) in vec4 tint;
  out vec2 at;
  out vec4 colour;
  void main() {
    gl_Position = vec4(place, 0.0, 1.0);
    at = texel;
    colour = tint;
  }`;
const PIXEL_SHADER = `#version 300 es
  precision highp float;
  uniform sampler2D picture;
  in vec2 at;
  in vec4 colour;
  out vec4 pixel;
  void main() {
    pixel = texture(picture, at) * colour;
  }`;

let gl; // none before the first game
let mostPixels; // across the canvas
let paths = []; // of the pictures; the first one's number is 1
let textures = []; // by the numbers of their pictures; 0 is plain white
let background = 0; // the number of what the last frame drew first


// Returns false if the browser has no WebGL 2. The game draws every frame completely, so nothing behind the canvas
// shows through.
export function open(canvas) {
  if (gl)
    return true;
  const options = {alpha: false, antialias: false, depth: false, stencil: false};
  // The pictures have two pixels for each of the game's, so more would show nothing new. Without a graphics card every
  // pixel is expensive.
  gl = canvas.getContext('webgl2', {...options, failIfMajorPerformanceCaveat: true});
  mostPixels = canvas.width * (gl ? 2 : 1);
  gl ??= canvas.getContext('webgl2', options);
  return Boolean(gl);
}


// Makes everything that the frames need, out of images by the paths that the program uses. If the browser has taken the
// graphics away and given them back, nothing of it is left, and all is made again. While they are away, nothing can be
// made.
export async function makeTextures(images) {
  paths = Object.keys(images);
  if (gl.isContextLost() || gl.isTexture(textures[0]))
    return;
  openProgram();
  // Pixels arrive as they are in the file. Rows are counted from below, as OpenGL counts them.
  gl.pixelStorei(gl.UNPACK_COLORSPACE_CONVERSION_WEBGL, gl.NONE);
  gl.pixelStorei(gl.UNPACK_FLIP_Y_WEBGL, true);
  const made = [texture(() => gl.texImage2D(gl.TEXTURE_2D, 0, gl.RGBA, 1, 1, 0, gl.RGBA, gl.UNSIGNED_BYTE, WHITE))];
  for (const image of Object.values(images)) {
    made.push(texture(() => gl.texImage2D(gl.TEXTURE_2D, 0, gl.RGBA, gl.RGBA, gl.UNSIGNED_BYTE, image)));
    // The browser may have to decode each image again, and that takes a while.
    await new Promise(done => setTimeout(done));
  }
  textures = made;
}


// One program draws everything: a picture tinted by a colour.
function openProgram() {
  const program = gl.createProgram();
  for (const [type, source] of [[gl.VERTEX_SHADER, CORNER_SHADER], [gl.FRAGMENT_SHADER, PIXEL_SHADER]]) {
    const shader = gl.createShader(type);
    gl.shaderSource(shader, source);
    gl.compileShader(shader);
    gl.attachShader(program, shader);
  }
  gl.linkProgram(program);
  gl.useProgram(program);

  gl.bindBuffer(gl.ARRAY_BUFFER, gl.createBuffer());
  gl.vertexAttribPointer(0, 2, gl.FLOAT, false, CORNER_BYTES, 0);
  gl.vertexAttribPointer(1, 2, gl.FLOAT, false, CORNER_BYTES, 8);
  gl.vertexAttribPointer(2, 4, gl.UNSIGNED_BYTE, true, CORNER_BYTES, 16);
  for (const attribute of [0, 1, 2])
    gl.enableVertexAttribArray(attribute);
  gl.enable(gl.BLEND);
  gl.blendFunc(gl.SRC_ALPHA, gl.ONE_MINUS_SRC_ALPHA);
}


// The game filters all its pictures in the same way.
function texture(upload) {
  const made = gl.createTexture();
  gl.bindTexture(gl.TEXTURE_2D, made);
  upload();
  gl.generateMipmap(gl.TEXTURE_2D);
  gl.texParameteri(gl.TEXTURE_2D, gl.TEXTURE_MIN_FILTER, gl.LINEAR_MIPMAP_LINEAR);
  return made;
}


export function isLost() {
  return Boolean(gl?.isContextLost());
}


// The number of a picture, 0 if there is none.
export function picture(path) {
  return paths.indexOf(path) + 1;
}


// Whether the last frame lies on this picture.
export function isBackground(path) {
  return picture(path) === background;
}


// Begins a frame. A canvas that changes its size is black until it is drawn on, so this is the time for that: it gets
// as many pixels as the page shows, up to what the pictures and the machine allow.
export function begin() {
  const {canvas} = gl;
  const area = canvas.getBoundingClientRect();
  const scale = Math.min(devicePixelRatio, mostPixels / area.width);
  const width = Math.max(1, Math.round(area.width * scale));
  const height = Math.max(1, Math.round(area.height * scale));
  if (canvas.width !== width || canvas.height !== height) {
    canvas.width = width;
    canvas.height = height;
    gl.viewport(0, 0, gl.drawingBufferWidth, gl.drawingBufferHeight);
  }
  gl.clear(gl.COLOR_BUFFER_BIT);
}


// Draws triangles. `corners` are their bytes; `batches` has pairs: the number of a picture, and how many of the next
// corners show it.
export function draw(corners, batches) {
  background = batches[0];
  gl.bufferData(gl.ARRAY_BUFFER, corners, gl.STREAM_DRAW);
  let first = 0;
  for (let i = 0; i < batches.length; i += 2) {
    gl.bindTexture(gl.TEXTURE_2D, textures[batches[i]]);
    gl.drawArrays(gl.TRIANGLES, first, batches[i + 1]);
    first += batches[i + 1];
  }
}
