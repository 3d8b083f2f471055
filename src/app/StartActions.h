#pragma once

#include <string>

class Database;

/// What the start of the program needs of the world around it. The desktop program gives windows and the procedures of
/// the other rooms, a test gives a script.
class StartActions {
public:
    virtual ~StartActions() = default;

    /// Whether another process of this installation runs. From then on this process counts as the running one.
    virtual bool anotherInstanceRunning() = 0;
    /// Makes the font of a file known for this session. False where there is no such file or it is no font.
    virtual bool addFontFile(const std::string& path) = 0;
    /// Three double-quoted fields joined by commas, or empty.
    virtual std::string commandLine() = 0;
    /// Loads FrmMain and shows it without waiting.
    virtual void showMainWindow() = 0;

    /// 0 when the program may go on.
    virtual int ModUtilities_CheckForNewUKMapDB() = 0;
    /// Whether the project is open in gdbProject. Shows no message.
    virtual bool OpenProjectDatabase(const std::string& path) = 0;
    /// 0 on success.
    virtual int ModUtilities_UpdateMappingGISTable(Database& project) = 0;
    virtual void ModUtilities_OpenMap() = 0;
};
