// Keys of the browser as the game knows them: the code of a key by its place, and the sign that stands on it.

const ByCode = {
  Backspace: 8, Tab: 9, Enter: 13, NumpadEnter: 13, ShiftLeft: 16, ShiftRight: 16, ControlLeft: 17,
  ControlRight: 17, AltLeft: 18, AltRight: 18, Pause: 19, CapsLock: 20, Escape: 27, Space: 32, PageUp: 33,
  PageDown: 34, End: 35, Home: 36, ArrowLeft: 37, ArrowUp: 38, ArrowRight: 39, ArrowDown: 40, Insert: 45,
  Delete: 46, NumLock: 144, Semicolon: 186, Equal: 187, Comma: 188, Minus: 189, Period: 190, Slash: 191,
  Backquote: 192, BracketLeft: 219, Backslash: 220, BracketRight: 221, Quote: 222, NumpadMultiply: 106,
  NumpadAdd: 107, NumpadSubtract: 109, NumpadDecimal: 110, NumpadDivide: 111,
};

/** The code that the game has for the key; 0 for none. */
export function keyCode(event) {
  const known = ByCode[event.code];
  if (known) return known;
  const letter = /^Key([A-Z])$/.exec(event.code) ?? /^Digit([0-9])$/.exec(event.code);
  if (letter) return letter[1].charCodeAt(0);
  const pad = /^Numpad([0-9])$/.exec(event.code);
  if (pad) return 96 + Number(pad[1]);
  const row = /^F([0-9]+)$/.exec(event.code);
  return row ? 111 + Number(row[1]) : 0;
}

/** What stands on the key, as a code: a capital, a digit, a sign; 0 for a key that writes nothing. */
export function keySign(event) {
  if (event.key.length !== 1) return 0;
  const sign = event.key.toUpperCase().charCodeAt(0);
  return sign < 128 ? sign : 0;
}

/** The modifiers held. */
export function shiftState(event) {
  return (event.shiftKey ? 1 : 0) + (event.ctrlKey ? 2 : 0) + (event.altKey ? 4 : 0);
}

/** The button that went down or up. */
export function buttonCode(event) {
  return [1, 4, 2][event.button] ?? 0;
}
