#pragma once

#include <QLockFile>

#include <string>

/// Keeps a second process off one installation: a lock file in the system's temporary folder, named after the folder
/// that holds Paths.txt, held until this object goes. What a crashed process left behind is taken over.
class SingleInstance {
public:
    explicit SingleInstance(const std::string& pathsFolder);

    /// True where another living process holds the lock; else this process holds it from now on. Where no lock file can
    /// be made at all the program may run: a full disk must not shut it out.
    bool anotherIsRunning();

private:
    QLockFile lock_;
};
