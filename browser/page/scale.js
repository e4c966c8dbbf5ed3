// How large all is shown: so that a pixel of the game is a whole number of the device's, or a whole number and a
// half, as large as the window has room for; or as the player chose.

const Step = 0.5;
const Largest = 8;
const Kept = "sarnoth3.size";

export class Scale {
  /** `size` is the game's own, in its pixels; `changed` runs when all must be laid out again. */
  constructor(size, changed) {
    this.size = size;
    this.changed = changed;
    this.chosen = Number(localStorage.getItem(Kept)) || 0;  // device pixels for one of the game; 0: what fits
    this.factor = 1;
    addEventListener("resize", () => this.update());
  }

  room() {
    const squad = document.getElementById("squad");
    const beside = squad.hidden ? 0 : squad.offsetWidth;
    return {width: innerWidth - beside, height: innerHeight - document.getElementById("bar").offsetHeight};
  }

  fitting() {
    const {width, height} = this.room();
    const most = devicePixelRatio * Math.min(width / this.size.width, height / this.size.height);
    const step = most >= 1 ? Step : Step / 2;
    return Math.min(Largest, Math.max(step, Math.floor(most / step + 1e-6) * step));
  }

  /** Pixels of the style sheet for one of the game. */
  get css() { return this.factor / devicePixelRatio; }

  update() {
    this.factor = this.chosen || this.fitting();
    document.documentElement.style.setProperty("--px", `${this.css}px`);
    this.centre();
    this.changed();
  }

  // In the middle, on whole pixels of the device.
  centre() {
    const {width, height} = this.room();
    const whole = length => Math.max(0, Math.floor(length * devicePixelRatio / 2) / devicePixelRatio);
    const {style} = document.documentElement;
    style.setProperty("--left", `${whole(width - this.size.width * this.css)}px`);
    style.setProperty("--top", `${whole(height - this.size.height * this.css)}px`);
  }

  /** Larger or smaller by a step; 0: as large as fits. What is said of it. */
  step(by) {
    const before = this.factor;
    this.chosen = by === 0 ? 0 : Math.min(Largest, Math.max(Step, this.factor + by * Step));
    localStorage.setItem(Kept, this.chosen);
    this.update();
    if (by === 0) return `Size ${this.factor}, as large as fits`;
    return this.factor === before ? `Size ${this.factor}: the ${by < 0 ? "smallest" : "largest"}` : `Size ${this.factor}`;
  }
}
