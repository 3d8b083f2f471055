#include "data/project/BoundaryDate.h"

#include "core/LogAndGoOn.h"
#include "core/ModDeclarations.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <ctime>

Date presentTime() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
#ifdef _WIN32
    localtime_s(&local, &now);
#else
    localtime_r(&now, &local);
#endif
    return dateOf({.year = local.tm_year + 1900,
                   .month = local.tm_mon + 1,
                   .day = local.tm_mday,
                   .hour = local.tm_hour,
                   .minute = local.tm_min,
                   .second = local.tm_sec});
}

Date today() {
    return Date{std::floor(presentTime().days)};
}

std::string boundaryDateText(Date date) {
    static constexpr std::array<const char*, 12> months{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                        "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    const DateParts parts = partsOf(date);
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%02d/%s/%04d", parts.day,
                  months[static_cast<std::size_t>(parts.month - 1)], parts.year);
    return text.data();
}

int CreateSettingsTable(Database& database) {
    const bool made = logAndGoOn([&] {
        Field date;
        date.name = "BoundaryDate";
        date.type = FieldType::Date;
        TableDef settings = database.createTableDef("TblSettings");
        settings.fields.push_back(date);
        database.tableDefs().append(settings);
        database.tableDefs().refresh();
    });
    return made ? 0 : -1;
}

int ModData_UpdateSystemBoundaryDate(Database& database, Date date) {
    gsCurrentProc = "ModData_UpdateSystemBoundaryDate";
    bool exists = false;
    const bool looked = logAndGoOn([&] {
        database.tableDefs().refresh();
        exists = database.tableDefs().find("TblSettings") != nullptr;
    });
    if (!looked || (!exists && CreateSettingsTable(database) != 0))
        return -1;
    const bool written = logAndGoOn([&] {
        const auto rows = database.openRecordset("SELECT COUNT(*) AS RecCount FROM TblSettings");
        const std::string text = boundaryDateText(date);
        if (rows->value("RecCount").asInteger() == 0)
            database.execute("INSERT INTO TblSettings (BoundaryDate) VALUES ('" + text + "')");
        else
            database.execute("UPDATE TblSettings SET BoundaryDate = '" + text + "'");
    });
    return written ? 0 : -1;
}
