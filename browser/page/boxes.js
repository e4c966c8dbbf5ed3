// Boxes over the game: its messages and questions, which wait for an answer, and the pages of help, which don't.

import {labelled} from "./controls.js";

const element = id => document.getElementById(id);

function heading(title, close) {
  const line = document.createElement("h1");
  line.append(title);
  if (!close) return line;
  const button = document.createElement("button");
  button.type = "button";
  button.setAttribute("aria-label", "Close");
  button.textContent = "×";
  button.addEventListener("click", close);
  line.append(button);
  return line;
}

function content(text, page) {
  const part = document.createElement("div");
  part.className = page ? "page" : "text";
  if (page) part.innerHTML = page;  // the game's own, made without anything from outside
  else part.textContent = text;
  return part;
}

/** Asks, and resolves with {button, ticked}. */
export function ask(box) {
  const dialog = element("box");
  const form = document.createElement("form");
  form.method = "dialog";
  let tick = null;
  if (box.tick) {
    const label = document.createElement("label");
    tick = document.createElement("input");
    tick.type = "checkbox";
    label.append(tick, " " + box.tick.replace("&", ""));
    form.append(label);
  }
  return new Promise(resolve => {
    const answer = button => {
      dialog.oncancel = dialog.onkeydown = null;
      dialog.close();
      resolve({button, ticked: tick !== null && tick.checked});
    };
    const buttons = box.buttons.map((caption, i) => {
      const button = document.createElement("button");
      button.type = "button";
      labelled(button, caption);
      button.addEventListener("click", () => answer(i));
      return button;
    });
    form.append(...buttons);
    dialog.replaceChildren(heading(box.title), content(box.text, box.page), form);
    dialog.setAttribute("aria-label", box.title);
    dialog.oncancel = event => { event.preventDefault(); answer(box.atEscape); };
    dialog.onkeydown = event => {
      const at = box.buttons.findIndex(caption => caption[caption.indexOf("&") + 1]?.toUpperCase() === event.key.toUpperCase()
        && caption.includes("&"));
      if (at < 0 || event.ctrlKey) return;
      event.preventDefault();
      answer(at);
    };
    if (!dialog.open) dialog.showModal();
    buttons[0].focus();
  });
}

/** Shows a page of help, until it is closed. */
export function showPage(title, page) {
  const dialog = element("pages");
  if (dialog.open) return;
  const close = () => dialog.close();
  const part = content("", page);
  part.tabIndex = 0;
  dialog.replaceChildren(heading(title, close), part);
  dialog.setAttribute("aria-label", title);
  dialog.showModal();
  part.focus();
}

let noteEnd = 0;

/** Says something for a moment. */
export function say(text) {
  const note = element("note");
  note.textContent = text;
  note.hidden = false;
  clearTimeout(noteEnd);
  noteEnd = setTimeout(() => { note.hidden = true; }, 1200);
}
