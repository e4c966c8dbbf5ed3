// The game's forms on the page: the main one on the stage, others as modal dialogs, those within another form over it.

import {labelled, makeNode, mouseLine} from "./controls.js";
import {drawSketch} from "./sketch.js";

const px = pixels => `calc(${pixels} * var(--px))`;

class FormNode {
  constructor(record, page) {
    this.record = record;
    this.page = page;
    this.element = document.createElement("div");
    this.element.className = record.within ? "form embedded" : "form";
    this.element.dataset.id = record.id;
    this.canvas = document.createElement("canvas");
    this.canvas.width = this.canvas.height = 0;
    this.frame = document.createElement("div");
    this.frame.className = "frame";
    this.beside = document.createElement("div");
    this.beside.className = "beside";
    this.frame.hidden = this.beside.hidden = true;
    this.element.append(this.canvas, this.frame, this.beside);
    if (!record.within) this.listen();
    if (record.within) page.forms.get(record.within).element.append(this.element);
    else if (page.forms.size === 0) document.getElementById("stage").replaceChildren(this.element);
    else this.makeDialog();
  }

  makeDialog() {
    this.dialog = document.createElement("dialog");
    this.dialog.className = "window";
    this.heading = document.createElement("h1");
    this.dialog.append(this.heading, this.element);
    this.dialog.addEventListener("cancel", event => event.preventDefault());
    document.body.append(this.dialog);
  }

  listen() {
    for (const [kind, what] of [["mousedown", "down"], ["mouseup", "up"], ["mousemove", "move"]])
      this.element.addEventListener(kind, event => this.page.send(mouseLine(what, this.element, this.record, event)));
    this.element.addEventListener("mouseleave", () => this.page.send("leave"));
    this.element.addEventListener("contextmenu", event => event.preventDefault());
  }

  update(record) {
    this.record = record;
    const {element} = this;
    Object.assign(element.style, {width: px(record.width), height: px(record.height), background: record.back});
    if (record.within) Object.assign(element.style, {left: px(record.left), top: px(record.top)});
    element.hidden = !record.visible;
    element.setAttribute("aria-label", record.name);
    if (this.dialog) this.updateDialog();
    else if (!record.within) document.title = record.caption;
  }

  updateDialog() {
    const close = document.createElement("button");
    close.type = "button";
    close.textContent = "×";
    close.setAttribute("aria-label", "Close");
    close.addEventListener("click", () => this.page.send(`close ${this.record.id} 0`));
    this.heading.replaceChildren(this.record.caption, close);
    this.dialog.setAttribute("aria-label", this.record.caption);
    if (this.record.visible && !this.dialog.open) {
      this.dialog.showModal();
      document.activeElement?.blur();
    }
    if (!this.record.visible && this.dialog.open) this.dialog.close();
  }

  pixels(left, top, width, height, bytes) {
    if (this.canvas.width < left + width || this.canvas.height < top + height) {
      this.canvas.width = Math.max(this.canvas.width, left + width);
      this.canvas.height = Math.max(this.canvas.height, top + height);
      Object.assign(this.canvas.style, {width: px(this.canvas.width), height: px(this.canvas.height)});
    }
    this.canvas.getContext("2d", {willReadFrequently: true}).putImageData(new ImageData(new Uint8ClampedArray(bytes), width, height), left, top);
  }

  showFrame({left, top, width, height, tip}) {
    const shown = width > 0 && height > 0;
    this.frame.hidden = !shown;
    Object.assign(this.frame.style, {left: px(left), top: px(top), width: px(width), height: px(height)});
    clearTimeout(this.tipPause);
    this.beside.hidden = true;
    if (!shown || !tip) return;
    this.tipPause = setTimeout(() => {
      this.beside.textContent = tip;
      Object.assign(this.beside.style, {left: px(left + width), top: px(top + height)});
      this.beside.hidden = false;
      const over = this.beside.offsetLeft + this.beside.offsetWidth - this.element.clientWidth;
      if (over > 0) this.beside.style.left = `${Math.max(0, this.beside.offsetLeft - over)}px`;
      const below = this.beside.offsetTop + this.beside.offsetHeight - this.element.clientHeight;
      if (below > 0) this.beside.style.top = `${this.beside.offsetTop - below}px`;
    }, 700);
  }
}

export class Forms {
  /** `send` takes lines; `scale` says how large a pixel is. */
  constructor(send) {
    this.send = send;
    this.scale = {factor: 1};
    this.forms = new Map();
    this.nodes = new Map();
    this.menus = new Map();
    this.sketches = new Map();
  }

  form(record) {
    if (!this.forms.has(record.id)) this.forms.set(record.id, new FormNode(record, this));
    this.forms.get(record.id).update(record);
  }

  control(record) {
    if (record.kind === "menu") return this.menu(record);
    let node = this.nodes.get(record.id);
    if (!node) {
      node = makeNode(record, this.send);
      this.nodes.set(record.id, node);
      const parent = this.nodes.get(record.parent) ?? this.forms.get(record.parent);
      const before = parent instanceof FormNode ? parent.frame : null;
      parent.element.insertBefore(node.element, before);
    }
    node.update(record);
  }

  menu(record) {
    let button = this.menus.get(record.id);
    if (!button) {
      button = document.createElement("button");
      button.type = "button";
      button.addEventListener("click", () => { button.blur(); this.send(`click ${record.id} 0`); });
      this.menus.set(record.id, button);
      document.getElementById("gameMenu").append(button);
    }
    labelled(button, record.caption, record.letter);
    button.dataset.letter = record.caption[record.caption.indexOf("&") + 1].toUpperCase();
    button.disabled = !record.enabled;
    button.hidden = !record.visible;
  }

  entries({id, from, entries}) { this.nodes.get(id).setEntries(from, entries); }
  cleared({id}) { this.nodes.get(id).clear(); }
  pixels(id, ...rest) { (this.nodes.get(id) ?? this.forms.get(id)).pixels(...rest); }
  frame(message) { this.forms.get(message.form).showFrame(message); }
  focus({id}) { this.nodes.get(id)?.element.focus({preventScroll: true}); }
  open({id}) { this.nodes.get(id)?.open(); }
  push({id}) { this.nodes.get(id)?.push(); }

  sketch(message) {
    let shown = this.sketches.get(message.over);
    if (!shown) {
      const canvas = document.createElement("canvas");
      canvas.className = "sketch";
      (this.nodes.get(message.over) ?? this.forms.get(message.over)).element.append(canvas);
      shown = {canvas};
      this.sketches.set(message.over, shown);
    }
    shown.message = message;
    this.draw(shown);
  }

  draw({canvas, message}) {
    const {left, top, width, height} = message;
    const {factor} = this.scale;
    const wide = Math.round(width * factor), high = Math.round(height * factor);
    if (canvas.width !== wide || canvas.height !== high) {
      canvas.width = wide;
      canvas.height = high;
      Object.assign(canvas.style, {left: px(left), top: px(top), width: px(width), height: px(height)});
    }
    drawSketch(canvas, message.strokes, factor, this.nodes.get(message.over)?.canvas);
  }

  /** After another size was taken. */
  rescaled() {
    for (const shown of this.sketches.values()) this.draw(shown);
  }

  /** The form that lies over the others. */
  foremost() {
    return [...this.forms.values()].filter(form => !form.record.within && form.record.visible).at(-1);
  }

  /** The control that Alt and this letter use, "" for none. */
  idOfLetter(letter) {
    const form = this.foremost();
    for (const {record} of this.nodes.values())
      if (record.form === form?.record.id && record.letter === letter && record.visible && record.enabled) return record.id;
    return "";
  }
}
