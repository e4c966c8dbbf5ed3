// Everything that flies flies here: bullets, pellets, grenades, thrown knives. A flight walks pixel by pixel
// along a straight line, draws a thin trail, and hands each cell that it really crossed to BulletInCell,
// which a blast uses too.
#pragma once

/// Flies from pixel (x0, y0) toward pixel (x1, y1) with the shared bullet values and leaves where it ended in
/// impactX and impactY, which may lie outside the field.
void BulletFly(int x0, int y0, int x1, int y1);

/// Applies the bullet to a cell of the field and to who stands there, and wears it down.
void BulletInCell(int x, int y);
