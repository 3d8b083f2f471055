#include "data/upkeep/SystemMapUpdate.h"

#include "core/FileNames.h"
#include "core/LogAndGoOn.h"
#include "core/cPathControl.h"
#include "data/engine/Database.h"
#include "data/project/BoundaryDate.h"
#include "data/schema/Vocabulary.h"
#include "data/types/Value.h"

#include <array>

namespace {

/// What the user has put in; everything else comes with the delivered file.
constexpr std::array<const char*, 4> userTables{"tblPostCodePopulationDensity", "tblTVPopulationDensity", "PGN_GROUPS",
                                                "PNT_GROUPS"};

/// The delivered file may be write-protected, its copy must not be.
void copyFile(const std::string& from, const std::string& to) {
    namespace fs = std::filesystem;
    fs::copy_file(toPath(from), toPath(to), fs::copy_options::overwrite_existing);
    fs::permissions(toPath(to), fs::perms::owner_read | fs::perms::owner_write, fs::perm_options::add);
}

void deleteFile(const std::string& file) {
    std::filesystem::remove(toPath(file));
}

std::shared_ptr<Database> open(Workspace& workspace, const std::string& file,
                               Workspace::Access access = Workspace::Access::Shared) {
    return workspace.openDatabase(file, access, SystemMapConnect);
}

Money versionOf(Database& database) {
    const auto rows = database.openRecordset("SELECT TOP 1 * FROM TblVersion ORDER BY version DESC");
    return rows->EOF_() || rows->value("Version").isNull() ? Money{} : rows->value("Version").asMoney();
}

/// A file without versions is never newer and never older.
bool isNewer(Database& delivered, Database& working) {
    if (!delivered.tableDefs().find("tblVersion") || !working.tableDefs().find("tblVersion"))
        return false;
    return versionOf(delivered).tenThousandths > versionOf(working).tenThousandths;
}

void dropLink(Database& database) {
    ignoreErrors([&] { database.tableDefs().remove("TblLink"); });
    database.tableDefs().refresh();
}

void carryTable(Database& from, Database& to, const std::string& table) {
    dropLink(to);
    TableDef link = to.createTableDef("TblLink");
    link.connect = "MS Access;DATABASE=" + from.name() + ";PWD=" + std::string(SystemMapPassword);
    link.sourceTableName = table;
    to.tableDefs().append(link);
    to.execute("INSERT INTO " + table + " SELECT * FROM TblLink");
    dropLink(to);
}

/// One update, from the look at the two files to the exchange of the working copy.
class SystemMapUpdate {
public:
    SystemMapUpdate(const std::string& systemDataPath, const std::string& applicationDataPath, int& line)
        : delivered_(fileInFolder(systemDataPath, "UKMap.BAK")),
          working_(fileInFolder(applicationDataPath, "ukmap.mdb")),
          coming_(fileInFolder(applicationDataPath, "UKMap.upd")),
          lock_(fileInFolder(applicationDataPath, "UKMap.ldb")), line_(line) {}

    bool run() {
        at(10);
        if (!std::filesystem::exists(toPath(delivered_)))
            return true;
        at(20);
        ignoreErrors([&] { deleteFile(lock_); });
        at(30);
        if (!std::filesystem::exists(toPath(working_))) {
            copyFile(delivered_, coming_); // a copy broken off must not pass for a working copy
            takeComing();
            return true;
        }
        if (!deliveredIsNewer())
            return true;
        at(60);
        ignoreErrors([&] { deleteFile(coming_); });
        copyFile(delivered_, coming_);
        if (!fillComing())
            return false;
        at(110);
        takeComing();
        return true;
    }

private:
    void at(int line) { line_ = line; }

    bool deliveredIsNewer() {
        at(40);
        const auto working = open(*workspace_, working_);
        const auto delivered = open(*workspace_, delivered_, Workspace::Access::ReadOnly);
        at(50);
        return isNewer(*delivered, *working);
    }

    /// Puts the user's tables and today's date into the new working copy.
    bool fillComing() {
        at(70);
        const auto working = open(*workspace_, working_);
        const auto coming = open(*workspace_, coming_);
        at(80);
        for (const char* table : userTables)
            if (working->tableDefs().find(table))
                carryTable(*working, *coming, table);
        at(90);
        working->close();
        at(100);
        return ModData_UpdateSystemBoundaryDate(*coming, today()) == 0;
    }

    /// One step of the file system, so that there is a working copy at every moment.
    void takeComing() { std::filesystem::rename(toPath(coming_), toPath(working_)); }

    std::string delivered_, working_, coming_, lock_;
    int& line_;
    /// Of its own, so that none of these files stays open anywhere when they change their names.
    std::shared_ptr<Workspace> workspace_ = Workspace::create();
};

} // namespace

bool updateSystemMap(const std::string& systemDataPath, const std::string& applicationDataPath, int& line) {
    return SystemMapUpdate(systemDataPath, applicationDataPath, line).run();
}
