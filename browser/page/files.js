// The game's files: fetched from beside the page, or taken from within it, where it is one file alone.

/** The bytes of a file as an ArrayBuffer. Throws Error with the file and what is wrong. */
export async function loadBytes(name) {
  const inside = globalThis.sarnothFiles?.[name];
  const answer = await fetch(inside ?? name);
  if (!answer.ok) throw new Error(`${name}: ${answer.status} ${answer.statusText}`);
  return answer.arrayBuffer();
}

/** The same of a file that was compressed by gzip. */
export async function loadCompressed(name) {
  const stream = new Blob([await loadBytes(name)]).stream().pipeThrough(new DecompressionStream("gzip"));
  return new Response(stream).arrayBuffer();
}

/** The game's module as a WebAssembly.Module, compiled while it comes in. Servers compress it by themselves. */
export async function compileModule() {
  if (globalThis.sarnothFiles) return WebAssembly.compile(await loadCompressed("sarnoth.wasm.gz"));
  const name = "sarnoth.wasm";
  const answer = await fetch(name);
  if (!answer.ok) throw new Error(`${name}: ${answer.status} ${answer.statusText}`);
  // Only a server that names the type lets it be compiled on its way.
  return answer.headers.get("content-type") === "application/wasm" ? WebAssembly.compileStreaming(answer)
    : WebAssembly.compile(await answer.arrayBuffer());
}

/** What browser/pack.py has packed, as [name, bytes, what else its index has]. */
export function unpack(buffer) {
  const headLength = new DataView(buffer).getUint32(0, true);
  const index = JSON.parse(new TextDecoder().decode(new Uint8Array(buffer, 4, headLength)));
  const start = 4 + headLength;
  return index.map(([name, begin, length, ...rest]) => [name, new Uint8Array(buffer, start + begin, length), ...rest]);
}
