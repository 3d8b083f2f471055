#pragma once

/// Fonts and painting need the library's application object, but never a display. May be called again.
void startPainting();
