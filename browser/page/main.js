// Starts the game and passes between it and the page: its messages to what shows them, a person's doings back as lines.

import createGame from "./sarnoth.js";
import {ask, say, showPage} from "./boxes.js";
import {compileModule, loadBytes, loadCompressed, unpack} from "./files.js";
import {Forms} from "./forms.js";
import {keyCode, keySign, shiftState} from "./keys.js";
import {Scale} from "./scale.js";
import {Side} from "./side.js";
import {Sounds} from "./sound.js";
import {exportStore, holdAlone, importStore, mountStore, readExported} from "./store.js";

const element = id => document.getElementById(id);
const lines = [];
let wake = null;
let game = null;   // the module
let boxOpen = false;

function send(line) {
  // Of moves that wait together the last one counts.
  const move = /^mouse move (\S+) /.exec(line);
  if (move && lines.length > 0 && lines.at(-1).startsWith(move[0])) lines.pop();
  lines.push(line);
  wake?.();
}

const forms = new Forms(send);
const scale = new Scale({width: 800, height: 636}, () => forms.rescaled());
forms.scale = scale;
let givePack;
const sounds = new Sounds(new Promise(resolve => { givePack = resolve; }));
const faces = new Map();
const side = new Side(send, faceOf);
const soon = new MessageChannel();

function faceOf(file) {
  if (!faces.has(file)) {
    const path = `/game/${file.replaceAll("\\", "/").replace(/^\//, "")}`;
    faces.set(file, URL.createObjectURL(new Blob([game.FS.readFile(path)])));
  }
  return faces.get(file);
}

function download(name, blob) {
  const link = document.createElement("a");
  link.href = URL.createObjectURL(blob);
  link.download = name;
  link.click();
  setTimeout(() => URL.revokeObjectURL(link.href), 10000);
}

async function openBox(box) {
  boxOpen = true;
  const answer = await ask(box);
  boxOpen = false;
  send(`answer ${answer.button} ${answer.ticked ? 1 : 0}`);
}

function showSettings({loudness, squad, menu}) {
  sounds.setLoudness(loudness / 100);
  side.show(squad);
  scale.update();
  element("sound").textContent = loudness > 0 ? "Sound off" : "Sound on";
  element("helpMenu").replaceChildren(...menu.map(({caption, keys, isTick, ticked, endsGroup}, i) => {
    const button = document.createElement("button");
    button.type = "button";
    button.setAttribute("role", isTick ? "menuitemcheckbox" : "menuitem");
    if (isTick) button.setAttribute("aria-checked", ticked);
    if (endsGroup) button.className = "ends";
    const words = document.createElement("span");
    words.textContent = (isTick ? (ticked ? "☑ " : "☐ ") : "") + caption.replace("&", "");
    const key = document.createElement("kbd");
    key.textContent = keys;
    button.append(words, key);
    button.addEventListener("click", () => { element("help").open = false; send(`command ${i}`); });
    return button;
  }));
}

function toggleFullScreen() {
  const change = document.fullscreenElement ? document.exitFullscreen() : document.documentElement.requestFullscreen();
  change.catch(error => say(error.message));
}

const Handlers = {
  form: message => forms.form(message),
  control: message => forms.control(message),
  entries: message => forms.entries(message),
  cleared: message => forms.cleared(message),
  frame: message => forms.frame(message),
  focus: message => forms.focus(message),
  open: message => forms.open(message),
  push: message => forms.push(message),
  sketch: message => forms.sketch(message),
  sound: message => sounds.play(message),
  loops: message => sounds.setLoops(message.loops),
  box: openBox,
  help: message => showPage(message.title, message.page + BrowsersKeys),
  note: message => say(message.text),
  size: message => say(scale.step(message.step)),
  fullScreen: toggleFullScreen,
  settings: showSettings,
  squad: message => side.showSquad(message.rows),
  log: message => side.setEntries(message.entries),
  download: ({file, problem}) => problem ? say(problem)
    : download(`sarnoth-recording-${new Date().toISOString().slice(0, 10)}.txt`, new Blob([game.FS.readFile(file)])),
};

const BrowsersKeys = `<h2>In the browser</h2><p>The browser keeps some keys for itself. Ctrl+W, Ctrl+N and Ctrl+T are its own, F5
  loads the page again: the game goes on where it was. F6 leads from the game to the menus above it and back; there Tab goes on.
  Where the browser takes F11, the menu "Help" has "Full screen".</p>`;

const AtRest = 1000;  // milliseconds: so long it only waits when nothing moves

// What the module calls.
const page = {
  post: text => { const message = JSON.parse(text); Handlers[message.is](message); },
  pixels: (...block) => forms.pixels(...block),
  next: () => lines.shift() ?? null,
  wait: milliseconds => new Promise(resolve => {
    let timer = 0;
    const done = () => { clearTimeout(timer); wake = null; element("stage").ariaBusy = "true"; resolve(); };
    wake = done;
    if (milliseconds >= AtRest) element("stage").ariaBusy = "false";
    if (milliseconds >= 1) {
      timer = setTimeout(done, milliseconds);
    } else {  // a timer would take four milliseconds
      soon.port1.onmessage = done;
      soon.port2.postMessage(0);
    }
  }),
  end: async code => {
    removeEventListener("beforeunload", askToStay);
    await ask({title: "Sarnoth III", text: code === 0 ? "The mission is over." : "The game has ended by an error.", page: "",
               buttons: ["&New mission"], atEscape: 0, tick: ""});
    location.reload();
  },
};

// Keys with Ctrl that are the game's; the others are the browser's.
const OursWithCtrl = new Set(["Equal", "Minus", "NumpadAdd", "NumpadSubtract", "Digit0", "Numpad0", "KeyM", "KeyB", "ArrowUp",
                              "ArrowDown", "ControlLeft", "ControlRight", "ShiftLeft", "ShiftRight"]);

function belongsToGame(event) {
  if (boxOpen || element("pages").open || event.metaKey) return false;
  if (event.code === "F5" || event.code === "F12") return false;
  if (event.target.closest?.("#bar, #squad")) return false;
  if (isOpenList(event.target)) return false;
  return !event.ctrlKey || OursWithCtrl.has(event.code);
}

// A browser that can't say so keeps the keys of its lists.
function isOpenList(target) {
  if (target.tagName !== "SELECT") return false;
  return CSS.supports("selector(:open)") ? target.matches(":open") : true;
}

function takeKey(what, event) {
  if (event.code === "F6") {
    event.preventDefault();
    if (what === "down") toggleBar();
    return;
  }
  if (!belongsToGame(event)) return;
  event.preventDefault();
  sounds.unlock();
  if (what === "down" && event.altKey && !event.ctrlKey && keySign(event)) return useByLetter(event);
  const repeat = event.repeat ? 1 : 0;
  send(`key ${what} ${keyCode(event)} ${keySign(event)} ${shiftState(event)} 0 ${repeat} ${Math.round(event.timeStamp)}`);
}

function useByLetter(event) {
  const letter = String.fromCharCode(keyCode(event) || keySign(event));
  const menu = [...element("gameMenu").children].find(button => button.dataset.letter === letter && !button.disabled);
  const id = forms.idOfLetter(letter);
  if (event.repeat) return;
  if (menu && forms.foremost() === forms.forms.values().next().value) menu.click();
  else if (id) send(`use ${id} 0`);
}

function toggleBar() {
  const inBar = document.activeElement?.closest("#bar, #squad");
  if (inBar) document.activeElement.blur();
  else element("bar").querySelector("button, summary").focus();
}

function askToStay(event) { event.preventDefault(); }

function watchPage() {
  addEventListener("keydown", event => takeKey("down", event));
  addEventListener("keyup", event => takeKey("up", event));
  addEventListener("blur", () => send("letgo"));
  addEventListener("pointerdown", () => sounds.unlock(), {capture: true});
  document.addEventListener("mouseleave", () => send("leave"));
  for (const menu of document.querySelectorAll("#bar details"))
    menu.addEventListener("focusout", event => { if (!menu.contains(event.relatedTarget)) menu.open = false; });
  element("sound").addEventListener("click", () => {
    const mute = [...element("helpMenu").children].findIndex(button => button.textContent.includes("Ctrl+M"));
    send(`command ${mute}`);
    element("own").open = false;
  });
  element("exportStore").addEventListener("click", () => {
    element("own").open = false;
    download("sarnoth-store.bin", exportStore(game.FS));
  });
  element("importStore").addEventListener("click", () => { element("own").open = false; element("file").click(); });
  element("file").addEventListener("change", takeStore);
}

async function takeStore() {
  const [file] = element("file").files;
  element("file").value = "";
  if (!file) return;
  try {
    const files = readExported(await file.arrayBuffer());
    await importStore(game.FS, files);
    location.reload();
  } catch (error) {
    say(`${file.name}: ${error.message}`);
  }
}

async function start() {
  const [pack, compiled, alone] = await Promise.all([loadCompressed("game.pack.gz"), compileModule(), holdAlone()]);
  if (!alone) {
    element("loading").textContent = "Sarnoth III runs in another tab already. Close it there, and load this page again.";
    return;
  }
  watchPage();
  let giveUp;
  const failed = new Promise((_, reject) => { giveUp = reject; });
  const begun = createGame({
    page,
    locateFile: name => name,  // one file alone has no folder to look in
    instantiateWasm: (imports, done) => {
      WebAssembly.instantiate(compiled, imports).then(instance => done(instance, compiled)).catch(giveUp);
      return {};
    },
    preRun: [module => prepare(module, pack)],
    onAbort: reason => { element("note").textContent = `Sarnoth III: ${reason}`; element("note").hidden = false; },
  });
  await Promise.race([begun, failed]);
}

// The module waits for it before it begins.
function prepare(module, pack) {
  game = module;
  const {FS, IDBFS} = module;
  for (const [name, bytes] of unpack(pack)) {
    const path = `/game/${name}`;
    FS.mkdirTree(path.slice(0, path.lastIndexOf("/")));
    FS.writeFile(path, bytes, {canOwn: true});
  }
  FS.writeFile("/proc/self/exe", FS.readFile("/game/build"));
  module.addRunDependency("store");
  mountStore(FS, IDBFS).then(kept => {
    if (!kept) say("The browser keeps nothing for this page: what you bring home is lost when it is closed.");
    module.removeRunDependency("store");
    loadBytes("sounds.pack").then(buffer =>
      givePack(new Map(unpack(buffer).map(([name, bytes, rate]) => [name, {bytes, rate}]))), () => givePack(new Map()));
  });
}

if ("serviceWorker" in navigator && location.protocol.startsWith("http")) navigator.serviceWorker.register("service_worker.js");
start().catch(error => { element("stage").textContent = `Sarnoth III: ${error.message}`; });
