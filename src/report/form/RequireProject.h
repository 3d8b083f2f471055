#pragma once

/// Whether a project is open: its path is known and its database open.
bool projectIsOpen();

/// The same; says so to the user where none is. Every parameter asks it first, for its value would have no meaning.
bool requireProject();
