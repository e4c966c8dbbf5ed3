// The page's own control for each control record: made when it is first heard of, brought in line with each
// message. What a person does on it is reported as a line.

import {buttonCode, shiftState} from "./keys.js";

const px = pixels => `calc(${pixels} * var(--px))`;

/** A caption without the mark of its shortcut, and with the letter underlined where it has it. */
export function labelled(element, caption, letter) {
  const text = caption.replace("&", "");
  const marked = caption.indexOf("&");
  const at = marked >= 0 ? marked : letter ? text.toUpperCase().indexOf(letter) : -1;
  element.replaceChildren();
  if (at < 0) return element.append(text);
  const mark = document.createElement("u");
  mark.append(text[at]);
  element.append(text.slice(0, at), mark, text.slice(at + 1));
}

function place(element, record) {
  Object.assign(element.style, {left: px(record.left), top: px(record.top), width: px(record.width), height: px(record.height)});
  element.hidden = !record.visible;
}

// A press on a picture: where in it, in the game's pixels.
function pointAt(element, record, event) {
  const box = element.getBoundingClientRect();
  return [(event.clientX - box.left) * record.width / box.width, (event.clientY - box.top) * record.height / box.height];
}

export function mouseLine(what, element, record, event) {
  const [x, y] = pointAt(element, record, event);
  const second = what === "down" && event.detail > 1 ? 1 : 0;
  const held = (event.buttons & 1) + (event.buttons & 2 ? 2 : 0) + (event.buttons & 4 ? 4 : 0);
  return `mouse ${what} ${record.id} ${what === "move" ? 0 : buttonCode(event)} ${x.toFixed(2)} ${y.toFixed(2)} ${held} ${shiftState(event)} ${second}`;
}

function listenToMouse(element, node, send) {
  // A drag goes on outside; what this one lies in must not take it over.
  element.addEventListener("pointerdown", event => {
    event.stopPropagation();
    element.setPointerCapture(event.pointerId);
  });
  // Mouse events count clicks, which pointer events don't.
  element.addEventListener("mousedown", event => {
    event.stopPropagation();
    event.preventDefault();
    document.activeElement?.blur();
    send(mouseLine("down", element, node.record, event));
  });
  element.addEventListener("mouseup", event => { event.stopPropagation(); send(mouseLine("up", element, node.record, event)); });
  element.addEventListener("mousemove", event => { event.stopPropagation(); send(mouseLine("move", element, node.record, event)); });
  element.addEventListener("contextmenu", event => event.preventDefault());
}

class Node {
  constructor(record, send, tag) {
    this.record = record;
    this.send = send;
    this.element = document.createElement(tag);
    this.element.className = `control ${record.kind}`;
    this.element.dataset.id = record.id;
  }

  update(record) {
    this.record = record;
    place(this.element, record);
    if (record.tip) this.element.title = record.tip;
    else this.element.removeAttribute("title");
    if (record.stop) this.element.setAttribute("aria-label", record.name);
    this.element.classList.toggle("off", !record.enabled);
  }

  // What was done may come to nothing: the record stays as it was, and is shown.
  showAgain() { setTimeout(() => this.update(this.record), 150); }

  // A control of the browser's own keeps its presses from the picture below.
  keepMouse() {
    for (const kind of ["pointerdown", "mousedown", "mouseup"])
      this.element.addEventListener(kind, event => {
        event.stopPropagation();
        if (kind === "mousedown") this.send(mouseLine("down", this.element, this.record, event));
      });
    this.element.addEventListener("mousemove", event => {
      event.stopPropagation();
      this.send(mouseLine("move", this.element, this.record, event));
    });
    this.element.addEventListener("contextmenu", event => event.preventDefault());
  }

  watchFocus() {
    this.element.addEventListener("focus", () => this.send(`focus ${this.record.id}`));
  }
}

/** A picture that the game draws: a canvas in a box that others may lie in. */
class PictureNode extends Node {
  constructor(record, send) {
    super(record, send, "div");
    this.canvas = document.createElement("canvas");
    this.canvas.width = this.canvas.height = 0;
    this.element.append(this.canvas);
    listenToMouse(this.element, this, send);
    this.watchFocus();
  }

  update(record) {
    super.update(record);
    if (record.back) this.element.style.background = record.back;
    this.element.style.pointerEvents = record.enabled ? "auto" : "none";
    if (record.stop) {
      this.element.tabIndex = record.enabled ? 0 : -1;
      this.element.setAttribute("role", record.kind === "image" ? "button" : "application");
    }
  }

  pixels(left, top, width, height, bytes) {
    const isImage = this.record.kind === "image";
    const wide = isImage ? width : Math.max(this.canvas.width, left + width);
    const high = isImage ? height : Math.max(this.canvas.height, top + height);
    if (this.canvas.width !== wide || this.canvas.height !== high) {
      this.canvas.width = wide;
      this.canvas.height = high;
      Object.assign(this.canvas.style, {width: px(wide), height: px(high)});
    }
    const image = new ImageData(new Uint8ClampedArray(bytes), width, height);
    // Painted in many small pieces from the processor's side, the field without anything below it: so the browser keeps it
    // there too, and a frame of a walk costs half.
    const context = this.canvas.getContext("2d", {alpha: isImage, willReadFrequently: true});
    context.putImageData(image, left, top);
    this.canvas.hidden = false;
  }

  clear() { this.canvas.hidden = true; }
}

class ButtonNode extends Node {
  constructor(record, send) {
    super(record, send, "button");
    this.element.type = "button";
    this.element.addEventListener("click", () => send(`click ${this.record.id} 0`));
    this.keepMouse();
    this.watchFocus();
  }

  update(record) {
    super.update(record);
    this.element.disabled = !record.enabled;
    labelled(this.element, record.caption, record.letter);
  }

  push() {
    this.element.classList.add("down");
    setTimeout(() => this.element.classList.remove("down"), 100);
  }
}

/** A list to choose from. A log's text need not be one of its entries. */
class ListNode extends Node {
  constructor(record, send) {
    super(record, send, "select");
    this.entries = [];
    this.element.addEventListener("change", () => {
      const row = this.element.selectedIndex - (this.own ? 1 : 0);
      if (row >= 0) send(`choose ${this.record.id} ${row}`);
      this.element.blur();
      this.showAgain();
    });
    // Until it is opened only the shown entry is there: a log has thousands.
    for (const kind of ["pointerdown", "focus"]) this.element.addEventListener(kind, () => this.fill());
    this.keepMouse();
    this.watchFocus();
  }

  update(record) {
    super.update(record);
    this.element.disabled = !record.enabled;
    this.element.style.background = record.back;
    this.element.style.color = record.fore;
    this.fill();
  }

  setEntries(from, added) {
    this.entries.splice(from, this.entries.length - from, ...added);
    this.fill();
  }

  chosenRow() {
    if (this.record.kind === "list") return Math.min(this.record.chosen, this.entries.length - 1);
    return this.entries.lastIndexOf(this.record.text);
  }

  fill() {
    const options = this.element.options;
    const row = this.chosenRow();
    this.own = row < 0;
    const wanted = this.own ? [this.record.text, ...this.entries] : this.entries;
    while (options.length > wanted.length) options.remove(options.length - 1);
    wanted.forEach((text, i) => {
      if (options.length <= i) options.add(new Option(text));
      else if (options[i].text !== text) options[i].text = text;
    });
    this.element.selectedIndex = this.own ? 0 : row;
  }

  open() {
    this.element.focus();
    try { this.element.showPicker?.(); } catch { /* only right after a press: the arrow keys open it */ }
  }
}

/** A scroll bar whose thumb is always seen. */
class ScrollNode extends Node {
  constructor(record, send) {
    super(record, send, "input");
    this.element.type = "range";
    this.element.addEventListener("input", () => send(`scroll ${this.record.id} ${this.element.value}`));
    this.element.addEventListener("change", () => {
      send(`change ${this.record.id} ${this.element.value}`);
      this.showAgain();
    });
    this.element.addEventListener("wheel", event => {
      event.preventDefault();
      const {value, least, most, small} = this.record;
      const notches = Math.sign(event.deltaY || event.deltaX);
      send(`change ${this.record.id} ${Math.min(most, Math.max(least, value + 3 * small * notches))}`);
    }, {passive: false});
    this.keepMouse();
    this.watchFocus();
  }

  update(record) {
    super.update(record);
    const {element} = this;
    element.min = record.least;
    element.max = record.most;
    element.step = 1;
    if (document.activeElement !== element || !element.matches(":active")) element.value = record.value;
    element.disabled = !record.enabled;
    const length = record.kind === "hscroll" ? record.width : record.height;
    const share = record.large / (record.most - record.least + record.large || 1);
    element.style.setProperty("--thumb", px(Math.max(12, length * share)));
  }
}

class TextNode extends Node {
  constructor(record, send) {
    super(record, send, "div");
    listenToMouse(this.element, this, send);
  }

  update(record) {
    super.update(record);
    const {element} = this;
    element.style.color = record.fore;
    element.style.background = record.seeThrough ? "transparent" : record.back;
    element.classList.toggle("framed", record.kind === "text" && !record.seeThrough);
    element.style.pointerEvents = record.enabled ? "auto" : "none";
    const lines = record.caption.replaceAll("\r\n", "\n").replaceAll("\r", "\n").split("\n");
    element.replaceChildren(...lines.map(line => {
      const row = document.createElement("span");
      row.textContent = line;
      return row;
    }));
    if (record.kind === "text") this.fit();
  }

  // A text that is too long gets smaller letters, as far as they can be read.
  fit() {
    const tallest = Math.min(11, Math.max(1, this.record.height - 4));
    for (let size = tallest; size >= Math.min(8, tallest); --size) {
      this.element.style.fontSize = px(size);
      if (this.element.scrollWidth <= this.element.clientWidth) return;
    }
  }
}

class OutlineNode extends Node {
  constructor(record, send) { super(record, send, "div"); }

  update(record) {
    super.update(record);
    const {style} = this.element;
    if (record.kind === "shape") {
      style.border = `${px(1)} solid ${record.fore}`;
    } else {
      style.background = record.fore;
      style.width = px(record.width + 1);
      style.height = px(record.height + 1);
    }
  }
}

const Kinds = {
  canvas: PictureNode, image: PictureNode, button: ButtonNode, combo: ListNode, list: ListNode, hscroll: ScrollNode,
  vscroll: ScrollNode, label: TextNode, text: TextNode, shape: OutlineNode, line: OutlineNode,
};

/** The page's control for a record; `send` takes the lines of what is done on it. */
export function makeNode(record, send) {
  return new Kinds[record.kind](record, send);
}
