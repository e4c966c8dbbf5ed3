// The player's folder: his vehicle store, settings and journal. It lies in the browser's own storage; the game
// writes into it as into any folder, and its flush waits until the storage has it.

export const PlayersFolder = "/player";

/** Mounts the folder and reads what is kept. False where the browser keeps nothing: play goes on without. */
export async function mountStore(FS, IDBFS) {
  FS.mkdirTree(PlayersFolder);
  try {
    await probe();
    FS.mount(keptBy(FS, IDBFS), {}, PlayersFolder);
    await sync(FS, true);
  } catch (error) {
    console.warn(`storage: ${error.message ?? error}`);
    return false;
  }
  askToKeep();
  return true;
}

// Some browsers have no storage in a private window, or refuse it.
function probe() {
  return new Promise((resolve, reject) => {
    if (!globalThis.indexedDB) return reject(new Error("there is none"));
    const asked = indexedDB.open("sarnoth3-probe");
    asked.onsuccess = () => { asked.result.close(); resolve(); };
    asked.onerror = () => reject(asked.error);
  });
}

// The compiler's own way into the storage, but for the writing: its own takes a failed request for a kept file, and waits
// for ever when the storage is full. Here all is kept or nothing.
function keptBy(FS, IDBFS) {
  return {
    ...IDBFS,
    syncfs: (mount, fromStorage, callback) => {
      if (fromStorage) return IDBFS.syncfs(mount, true, callback);
      IDBFS.getLocalSet(mount, (error, local) => {
        if (error) return callback(error);
        IDBFS.getDB(mount.mountpoint, (error, storage) => {
          if (error) return callback(error);
          try {
            write(FS, storage, IDBFS.DB_STORE_NAME, local.entries, callback);
          } catch (refused) {
            callback(refused);
          }
        });
      });
    },
  };
}

function write(FS, storage, name, entries, callback) {
  const change = storage.transaction([name], "readwrite");
  change.oncomplete = () => callback(null);
  change.onabort = () => callback(change.error ?? new Error("the storage has refused"));
  const files = change.objectStore(name);
  const kept = new Map();
  files.index("timestamp").openKeyCursor().onsuccess = event => {
    const cursor = event.target.result;
    if (cursor) {
      kept.set(cursor.primaryKey, cursor.key.getTime());
      return cursor.continue();
    }
    for (const [path, {timestamp}] of Object.entries(entries))
      if (kept.get(path) !== timestamp.getTime()) files.put(entryOf(FS, path), path);
    for (const path of kept.keys())
      if (!entries[path]) files.delete(path);
  };
}

function entryOf(FS, path) {
  const {mtime: timestamp, mode} = FS.stat(path);
  return FS.isDir(mode) ? {timestamp, mode} : {timestamp, mode, contents: FS.readFile(path)};
}

/** Resolves when the storage has what lies in the folder, or with `fromStorage` the other way round. */
export function sync(FS, fromStorage = false) {
  return new Promise((resolve, reject) =>
    FS.syncfs(fromStorage, error => error ? reject(error) : resolve()));
}

// Browsers may drop what a page keeps when room is short, unless they were asked not to.
async function askToKeep() {
  if (navigator.storage && navigator.storage.persist) await navigator.storage.persist().catch(() => false);
}

const Mark = "sarnoth store 1\n";

function filesBelow(FS, folder) {
  return FS.readdir(folder).filter(name => name !== "." && name !== "..").flatMap(name => {
    const path = `${folder}/${name}`;
    return FS.isDir(FS.stat(path).mode) ? filesBelow(FS, path) : [path];
  });
}

/** All that is kept as one file, for the player to put away. */
export function exportStore(FS) {
  const parts = [Mark];
  for (const path of filesBelow(FS, PlayersFolder)) {
    const bytes = FS.readFile(path);
    parts.push(`${path.slice(PlayersFolder.length + 1)}\n${bytes.length}\n`, bytes);
  }
  return new Blob(parts, {type: "application/octet-stream"});
}

/** The files in what exportStore made, as [name, bytes]. Throws Error with what is wrong. */
export function readExported(buffer) {
  const bytes = new Uint8Array(buffer);
  const decoder = new TextDecoder("utf-8", {fatal: true});
  let at = 0;
  const line = () => {
    const end = bytes.indexOf(10, at);
    if (end < 0) throw new Error(`byte ${at}: expected the end of a line`);
    const text = decoder.decode(bytes.subarray(at, end));
    at = end + 1;
    return text;
  };
  if (bytes.length === 0 || line() + "\n" !== Mark) throw new Error("byte 0: this is not a store of Sarnoth III");
  const files = [];
  while (at < bytes.length) {
    const name = line();
    const safe = name !== "" && !name.startsWith("/") && !name.split("/").includes("..");
    if (!safe) throw new Error(`byte ${at}: expected the name of a file`);
    const length = Number(line());
    if (!Number.isInteger(length) || length < 0 || at + length > bytes.length)
      throw new Error(`byte ${at}: expected ${length} bytes of ${name}`);
    files.push([name, bytes.slice(at, at + length)]);
    at += length;
  }
  return files;
}

/** Puts the files in place of all that is kept. The game must be started again after it. */
export async function importStore(FS, files) {
  for (const path of filesBelow(FS, PlayersFolder)) FS.unlink(path);
  for (const [name, bytes] of files) {
    const path = `${PlayersFolder}/${name}`;
    FS.mkdirTree(path.slice(0, path.lastIndexOf("/")));
    FS.writeFile(path, bytes);
  }
  await sync(FS);
}

/** Whether this page is the only one that plays; it stays so until it is closed. Where the browser has no locks, nobody is asked. */
export function holdAlone() {
  if (!navigator.locks) return Promise.resolve(true);
  return new Promise(resolve =>
    navigator.locks.request("sarnoth3", {ifAvailable: true}, lock => {
      resolve(lock !== null);
      return lock === null ? undefined : new Promise(() => {});
    }));
}
