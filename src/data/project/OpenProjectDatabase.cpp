#include "data/project/OpenProjectDatabase.h"

#include "core/LogAndGoOn.h"
#include "core/ModDeclarations.h"
#include "data/engine/Database.h"
#include "data/project/UpdateMappingVersion.h"
#include "data/project/UpgradeProjectSchema.h"
#include "data/project/UpgradeTeleItemTable.h"
#include "data/schema/Vocabulary.h"

#include <string_view>
#include <vector>

namespace {

/// The passwords of projects, newest first, separated by "¦".
constexpr std::string_view projectPasswords = ProjectPassword;

std::vector<std::string> passwordList() {
    constexpr std::string_view separator = "¦";
    std::vector<std::string> passwords;
    std::string_view rest = projectPasswords;
    for (auto cut = rest.find(separator); cut != std::string_view::npos; cut = rest.find(separator)) {
        passwords.emplace_back(rest.substr(0, cut));
        rest.remove_prefix(cut + separator.size());
    }
    passwords.emplace_back(rest);
    return passwords;
}

} // namespace

bool OpenProjectDatabase(const std::string& path) {
    gsCurrentProc = "ModUtilities_OpenProjectDatabase";
    for (const std::string& password : passwordList()) {
        const bool opened = ignoreErrors([&] {
            gdbProject = defaultWorkspace()->openDatabase(path, Workspace::Access::Shared, "MS Access;PWD=" + password);
        });
        if (!opened)
            continue;
        gsProjectPassword = password;
        UpgradeTeleItemTable(path, password);
        UpgradeProjectSchema();
        UpdateMappingVersion();
        return true;
    }
    return false;
}
