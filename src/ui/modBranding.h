#pragma once

class QWidget;

/// Gives the interface font to the controls of a window that is being loaded; sizes and weights stay. Header, footer,
/// links, panels, progress bars, date pickers and the like have their own and are left alone, with all inside them but
/// what stands in a panel.
void setFormFonts(QWidget& form);

/// Gives the skin's colours to the grids, lists, date pickers and notes of a window.
void setFormColours(QWidget& form);
