// What is to be heard. The host says which sound, how loud at each side and at what rate; here it is played by
// the browser, which lets nothing be heard before the first press on the page.

const Slots = 9;            // as the host numbers them: 1 to 4 the rules', 5 to 8 its own
const FadeSeconds = 4;      // of a loop, from silence to its full level
const QuietMilliseconds = 10000;  // an audio graph that runs costs processor time also in silence

export class Sounds {
  /** `pack` is a promise of a map from "wav/click.wav" to {rate, bytes}; `context` is for tests that render without a device. */
  constructor(pack, context = null) {
    this.pack = pack;
    this.context = context;
    this.decoded = new Map();
    this.slots = new Array(Slots).fill(null);
    this.loops = new Map();
    this.wantedLoops = [];
    this.loudness = 1;
    this.quiet = 0;
  }

  /** To be called in the handler of a press: sound begins there, or goes on after a pause. */
  unlock() {
    if (this.context === null) {
      const Context = globalThis.AudioContext;
      if (!Context) return;
      this.context = new Context();
    }
    this.prepare();
    if (this.loudness > 0) this.context.resume();
    this.setLoops(this.wantedLoops);
    this.windQuiet();
  }

  prepare() {
    if (this.master) return;
    this.master = this.context.createGain();
    this.master.gain.value = this.loudness;
    this.master.connect(this.context.destination);
  }

  /** Everything, 0 to 1. At 0 the graph rests. */
  setLoudness(loudness) {
    this.loudness = loudness;
    if (!this.master) return;
    this.master.gain.value = loudness;
    if (loudness === 0) this.context.suspend();
    else this.unlock();
  }

  /** Plays {slot, file, left, right, rate}: `rate` in samples a second, whatever the file itself says. */
  async play(request) {
    if (!this.master || this.loudness === 0) return;
    if (this.context.state === "suspended") this.context.resume();
    this.stop(request.slot);
    const ticket = {};
    this.slots[request.slot] = ticket;
    const sound = await this.soundOf(request.file);
    if (!sound || this.slots[request.slot] !== ticket) return;  // another has taken the slot meanwhile
    ticket.source = this.source(sound, request.rate / sound.rate, this.sides(request.left, request.right));
    ticket.source.start();
    this.windQuiet();
  }

  stop(slot) {
    const playing = this.slots[slot];
    if (playing && playing.source) playing.source.stop();
    this.slots[slot] = null;
  }

  /** What sounds below all: an array of {file, level}, levels 0 to 1. Each goes slowly to its level. */
  async setLoops(wanted) {
    this.wantedLoops = wanted;
    if (!this.master || this.loudness === 0) return;
    for (const {file, level} of wanted) {
      if (level > 0 && !this.loops.has(file)) this.loops.set(file, await this.beginLoop(file));
      const loop = this.loops.get(file);
      if (loop) this.fade(loop.gain, level);
    }
    this.windQuiet();
  }

  // The other ear hears the same half a round later.
  async beginLoop(file) {
    const sound = await this.soundOf(file);
    if (!sound) return null;
    const level = this.context.createGain();
    level.gain.value = 0;
    level.connect(this.master);
    for (const [side, place] of [[[1, 0], 0], [[0, 1], sound.buffer.duration / 2]]) {
      const source = this.source(sound, 1, this.sides(...side, level));
      source.loop = true;
      source.start(0, place);
    }
    return level;
  }

  fade(gain, level) {
    const now = this.context.currentTime;
    const reach = FadeSeconds * Math.abs(level - gain.value);
    gain.cancelScheduledValues(now);
    gain.setValueAtTime(gain.value, now);
    gain.linearRampToValueAtTime(level, now + reach);
  }

  source(sound, pace, into) {
    const source = this.context.createBufferSource();
    source.buffer = sound.buffer;
    source.playbackRate.value = pace;
    source.connect(into.left);
    source.connect(into.right);
    return source;
  }

  sides(left, right, into = this.master) {
    const merger = this.context.createChannelMerger(2);
    const ofSide = (gain, input) => {
      const node = this.context.createGain();
      node.gain.value = gain;
      node.connect(merger, 0, input);
      return node;
    };
    merger.connect(into);
    return {left: ofSide(left, 0), right: ofSide(right, 1)};
  }

  async soundOf(file) {
    if (!this.decoded.has(file)) this.decoded.set(file, this.decode(file));
    return this.decoded.get(file);
  }

  // A sound that can't be had is not heard; play goes on.
  async decode(file) {
    try {
      const packed = (await this.pack).get(file);
      if (!packed) return null;
      return {rate: packed.rate, buffer: await this.context.decodeAudioData(packed.bytes.slice().buffer)};
    } catch (error) {
      console.warn(`${file}: ${error.message}`);
      return null;
    }
  }

  windQuiet() {
    clearTimeout(this.quiet);
    if (this.wantedLoops.some(({level}) => level > 0)) return;
    this.quiet = setTimeout(() => this.context.suspend(), QuietMilliseconds);
  }
}
