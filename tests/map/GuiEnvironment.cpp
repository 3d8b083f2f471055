// Fonts need a QGuiApplication; one serves all tests of the program.
#include <gtest/gtest.h>

#include <QGuiApplication>

#include <memory>

namespace {

class GuiEnvironment : public testing::Environment {
public:
    void SetUp() override {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        application_ = std::make_unique<QGuiApplication>(argumentCount_, arguments_);
    }
    void TearDown() override { application_.reset(); }

private:
    int argumentCount_ = 1;
    char name_[9] = "test_map";
    char* arguments_[2] = {name_, nullptr};
    std::unique_ptr<QGuiApplication> application_;
};

const testing::Environment* const registered = testing::AddGlobalTestEnvironment(new GuiEnvironment);

} // namespace
