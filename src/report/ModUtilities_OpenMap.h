#pragma once

class ProjectWindow;

/// At the start of the program: takes the project that is open in gdbProject into the window, counts it unless its
/// figures are still there, and goes on to its map. A project without calls is left with a message. Any other error is
/// shown in its own words and logged; the window then offers no reports. Main thread.
void ModUtilities_OpenMap(ProjectWindow& window);
