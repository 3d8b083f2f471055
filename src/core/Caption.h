#pragma once

#include <functional>
#include <string>

/// A caption in a window that a procedure writes its state into ("Processing Group: London"). An empty function stands
/// for a caption that the caller has not got. Called on the main thread.
using Caption = std::function<void(const std::string& text)>;

/// Writes `text` where there is a caption to write to.
inline void show(const Caption& caption, const std::string& text) {
    if (caption)
        caption(text);
}
