// The squad at a glance and the log for people, beside the game.

const element = id => document.getElementById(id);

function bar(kind, value, most) {
  const outer = document.createElement("span");
  outer.className = `bar ${kind}`;
  const inner = document.createElement("i");
  inner.style.width = `${Math.max(0, Math.min(100, 100 * value / (most || 1)))}%`;
  outer.append(inner);
  return outer;
}

function span(text, kind) {
  const made = document.createElement(kind === "small" ? "small" : "span");
  made.textContent = text;
  if (kind === "number") made.className = kind;
  return made;
}

export class Side {
  /** `faceOf` gives the address of a face's picture; `send` takes lines. */
  constructor(send, faceOf) {
    this.send = send;
    this.faceOf = faceOf;
    this.entries = [];
    element("filters").addEventListener("change", () => this.showLog());
  }

  show(shown) {
    element("squad").hidden = !shown;
    document.body.classList.toggle("withSquad", shown);
  }

  showSquad(rows) {
    element("rows").replaceChildren(...rows.map(row => {
      const button = document.createElement("button");
      button.type = "button";
      button.title = row.help;
      button.setAttribute("aria-label", row.spoken);
      button.setAttribute("aria-pressed", row.selected);
      const face = document.createElement("img");
      face.alt = "";
      face.src = this.faceOf(row.face);
      button.append(face, span(row.name), bar("health", row.health, row.mostHealth), span(row.health, "number"),
                    span(`${row.rank}, ${row.fitness}`, "small"), bar("time", row.time, row.mostTime), span(row.time, "number"));
      button.addEventListener("click", () => { this.send(`squad ${row.unit}`); button.blur(); });
      const item = document.createElement("li");
      item.append(button);
      return item;
    }));
  }

  setEntries(entries) {
    this.entries = entries;
    this.showLog();
  }

  // Whoever reads the newest line goes on reading the newest.
  showLog() {
    const list = element("log");
    const follows = list.scrollTop + list.clientHeight >= list.scrollHeight - 4;
    const wanted = new Set([...document.querySelectorAll("#filters input:checked")].flatMap(box => box.value.split(" ")));
    list.replaceChildren(...this.entries.flatMap((entry, i) => {
      if (entry.kind !== "turn" && !wanted.has(entry.kind)) return [];
      const item = document.createElement("li");
      item.className = entry.ours ? `${entry.kind} ours` : entry.kind;
      item.textContent = entry.text;
      item.addEventListener("dblclick", () => this.send(`entry ${i}`));
      return [item];
    }));
    if (follows) list.scrollTop = list.scrollHeight;
  }
}
