#include "core/ModDeclarations.h"
#include "core/RuntimeError.h"
#include "core/cPathControl.h"
#include "help/FrmMain_PrintUserGuide.h"
#include "tests/support/ScriptedPrompts.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fstream>

namespace {

class PrintUserGuide : public testing::Test {
protected:
    PrintUserGuide() {
        gPaths = std::make_unique<cPathControl>(folder.text());
        gPaths->ApplicationDataPath = folder.text();
    }
    ~PrintUserGuide() override { gPaths.reset(); }

    void write(const char* name, int lines = 1) {
        std::ofstream file(folder.file(name));
        for (int line = 1; line <= lines; ++line)
            file << "line " << line << "\r\n";
    }
    void print() {
        FrmMain_PrintUserGuide(
            {[&](const std::string&) { return hasWordProcessor; }, [&](const auto& printed) { pages = printed; }});
    }

    TemporaryFolder folder;
    ScriptedPrompts prompts;
    bool hasWordProcessor = false;
    std::vector<std::vector<std::string>> pages;
};

} // namespace

TEST_F(PrintUserGuide, MissingFilesAreTold) {
    write("CallscopeMapping.txt");
    print();
    write("CallscopeMapping.pdf");
    std::filesystem::remove(folder.file("CallscopeMapping.txt"));
    print();
    EXPECT_EQ(prompts.texts,
              (std::vector<std::string>{"User Guide file is missing", "Plain Text User Guide file is missing"}));
    hasWordProcessor = true;
    print();
    EXPECT_EQ(prompts.texts.size(), 2U) << "a word processor needs no plain text";
    EXPECT_TRUE(pages.empty());
}

TEST_F(PrintUserGuide, PlainTextIsPrintedWithConsentOnly) {
    write("CallscopeMapping.pdf");
    write("CallscopeMapping.txt", 82);
    print();
    EXPECT_TRUE(pages.empty());
    prompts.answers = {PromptAnswer::Yes};
    print();
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_EQ(pages[0].size(), 81U) << "a page ends after more than 80 lines";
    EXPECT_EQ(pages[1], std::vector<std::string>{"line 82"});
    EXPECT_EQ(prompts.texts.back(), "Microsoft Word does not appear to be installed on this computer.  The User Guide "
                                    "will therefore be printed in Plain Text");
}

TEST_F(PrintUserGuide, ACopyIsSavedWholeOrTheFaultNamesItsPath) {
    EXPECT_THROW(saveUserGuideAs(folder.file("copy")), RuntimeError);
    write("CallscopeMapping.pdf", 3);
    saveUserGuideAs(folder.file("copy"));
    EXPECT_EQ(std::filesystem::file_size(folder.file("copy")),
              std::filesystem::file_size(folder.file("CallscopeMapping.pdf")));
    EXPECT_THROW(saveUserGuideAs(folder.file("missing/copy")), RuntimeError);
}
