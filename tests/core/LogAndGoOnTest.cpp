#include "core/LogAndGoOn.h"
#include "core/ModDeclarations.h"
#include "core/RuntimeError.h"
#include "core/cPathControl.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TextFile.h"

#include <gtest/gtest.h>

namespace {

TEST(LogAndGoOn, LogsUnderTheProcedureThatFailed) {
    const TemporaryFolder folder;
    gPaths = std::make_shared<cPathControl>(folder.text(), folder.text());
    gPaths->ApplicationDataPath = folder.text();
    const std::string log = folder.file("CS Mapping Error.log");

    gsCurrentProc = "A_Procedure";
    EXPECT_TRUE(logAndGoOn([] {}));
    EXPECT_FALSE(ignoreErrors([] { throw RuntimeError(3376, "no table"); }));
    EXPECT_FALSE(std::filesystem::exists(log));

    EXPECT_FALSE(logAndGoOn([] {
        gsCurrentProc = "A_Procedure_Stage2";
        throw RuntimeError(11, "Division by zero");
    }));
    EXPECT_TRUE(readText(log).ends_with(",\"A_Procedure_Stage2\",11,\"Division by zero\"\n"));

    EXPECT_FALSE(logAndGoOn([&] { std::filesystem::create_directory(folder.file("a/b")); }));
    EXPECT_NE(readText(log).find(folder.file("a/b")), std::string::npos);
    EXPECT_FALSE(logAndGoOn([] { throw std::out_of_range("far away"); }));
    EXPECT_TRUE(readText(log).ends_with("\"far away\"\n"));
    resetGlobals();
}

} // namespace
