#pragma once

class QWidget;

/// Opens the help that `window` asks for: the help file of the installation where there is one and the desktop can open
/// it, else the guide at the page of that window. The guide stands above `window` and closes with it.
void openHelp(QWidget& window);
