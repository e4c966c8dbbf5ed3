// What the compiler's own runtime does otherwise than the game needs it.
mergeInto(LibraryManager.library, {
  // fsync of the module. The compiler's own loses the storage's refusal: it takes every flush for a good one.
  fd_sync__sig: "ii",
  fd_sync__deps: ["$SYSCALLS", "$Asyncify"],
  // Only the outermost call into the module can find that it was stopped to wait. The compiler's own watches all of them, and
  // each call past a clean-up is one, thousands in a turn.
  fd_sync__postset: "Asyncify.instrumentWasmExports = (watchAll => exports => {" +
    "const watched = watchAll(exports);" +
    "for (const name in exports) {" +
      "const plain = exports[name], outer = watched[name];" +
      "if (typeof plain === 'function')" +
        "watched[name] = (...all) => Asyncify.exportCallStack.length ? plain(...all) : outer(...all);" +
    "}" +
    "return watched;" +
  "})(Asyncify.instrumentWasmExports);",
  fd_sync: function(fd) {
    const InputOutputError = 29;
    const mount = SYSCALLS.getStreamFromFD(fd).node.mount;
    return Asyncify.handleSleep(wakeUp => {
      if (!mount.type.syncfs) return wakeUp(0);
      mount.type.syncfs(mount, false, error => wakeUp(error ? InputOutputError : 0));
    });
  },
});
