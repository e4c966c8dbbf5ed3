// fsync of the module. The compiler's own loses the storage's refusal: it takes every flush for a good one.
mergeInto(LibraryManager.library, {
  fd_sync__sig: "ii",
  fd_sync__deps: ["$SYSCALLS", "$Asyncify"],
  fd_sync: function(fd) {
    const InputOutputError = 29;
    const mount = SYSCALLS.getStreamFromFD(fd).node.mount;
    return Asyncify.handleSleep(wakeUp => {
      if (!mount.type.syncfs) return wakeUp(0);
      mount.type.syncfs(mount, false, error => wakeUp(error ? InputOutputError : 0));
    });
  },
});
