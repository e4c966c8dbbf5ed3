// The whole map painted at once, before anybody lands.
#pragma once

/// Paints every cell of the map into the field and the mini map, behind the progress window.
void PaintMap();
