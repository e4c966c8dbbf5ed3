// Lets the game start without a network: all its files are kept at the first visit, and taken from there.
// The build puts a sum of them in place of the name, so that a new build is fetched whole.
const Cache = "sarnoth3-@SUM@";
const Files = [@FILES@];

self.addEventListener("install", event => {
  event.waitUntil(caches.open(Cache).then(cache => cache.addAll(Files)).then(() => self.skipWaiting()));
});

self.addEventListener("activate", event => {
  const dropOthers = names => Promise.all(
    names.filter(name => name.startsWith("sarnoth3-") && name !== Cache).map(name => caches.delete(name)));
  event.waitUntil(caches.keys().then(dropOthers).then(() => self.clients.claim()));
});

self.addEventListener("fetch", event => {
  if (event.request.method !== "GET") return;
  event.respondWith(caches.match(event.request, {cacheName: Cache, ignoreSearch: true})
    .then(kept => kept ?? fetch(event.request)));
});
