// Draws what lies over the game's pictures: strokes as data, sharp at any size.

const Full = 2 * Math.PI;
const RingBreadth = 1.5;

function paint(context, stroke, under) {
  const {x, y, toX, toY, breadth} = stroke;
  const colour = `#${stroke.colour.toString(16).padStart(6, "0")}`;
  context.globalAlpha = stroke.alpha;
  context.fillStyle = context.strokeStyle = colour;
  context.lineWidth = breadth;
  context.lineCap = "round";
  context.lineJoin = "miter";
  context.beginPath();
  switch (stroke.kind) {
    case "line":
      context.moveTo(x, y);
      context.lineTo(toX, toY);
      return context.stroke();
    case "disc":
      context.arc(x, y, breadth / 2, 0, Full);
      return context.fill();
    case "ring":
      context.lineWidth = RingBreadth;
      context.arc(x, y, breadth / 2, 0, Full);
      return context.stroke();
    case "box":
      return context.fillRect(x, y, toX - x, toY - y);
    case "frame":
      return context.strokeRect(x, y, toX - x, toY - y);
    case "words":
      context.font = `bold ${Math.max(1, Math.floor(breadth))}px "DejaVu Sans", Verdana, sans-serif`;
      context.textAlign = "center";
      context.textBaseline = "middle";
      context.lineJoin = "round";
      context.lineWidth = 3;
      context.strokeStyle = "#000";
      context.strokeText(stroke.text, x, y);
      return context.fillText(stroke.text, x, y);
    case "piece":
      context.globalAlpha = 1;
      if (under) context.drawImage(under, x, y, breadth, breadth, toX, toY, breadth, breadth);
  }
}

/** Shows `strokes` on the canvas, which is `scale` of its pixels for one of the game; `under` is the picture beneath. */
export function drawSketch(canvas, strokes, scale, under) {
  const context = canvas.getContext("2d");
  context.setTransform(1, 0, 0, 1, 0, 0);
  context.clearRect(0, 0, canvas.width, canvas.height);
  context.setTransform(scale, 0, 0, scale, 0, 0);
  context.imageSmoothingEnabled = false;
  for (const stroke of strokes) paint(context, stroke, under);
}
