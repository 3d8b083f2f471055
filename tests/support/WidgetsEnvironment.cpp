// Windows need a QApplication; one serves all tests of the program. It is shown on no screen.
#include <gtest/gtest.h>

#include <QApplication>

#include <memory>

namespace {

class WidgetsEnvironment : public testing::Environment {
public:
    void SetUp() override {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        application_ = std::make_unique<QApplication>(argumentCount_, arguments_);
    }
    void TearDown() override { application_.reset(); }

private:
    int argumentCount_ = 1;
    char name_[8] = "windows";
    char* arguments_[2] = {name_, nullptr};
    std::unique_ptr<QApplication> application_;
};

const testing::Environment* const registered = testing::AddGlobalTestEnvironment(new WidgetsEnvironment);

} // namespace
