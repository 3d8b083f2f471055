#pragma once

#include "core/ModDeclarations.h"
#include "data/project/Databases.h"
#include "data/schema/Vocabulary.h"
#include "report/FrmMain.h"
#include "tests/support/ScriptedPrompts.h"
#include "tests/support/SmallInstallation.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <memory>

/// The main window on a small project with calls of 1 March to 31 May 2025, two inbound numbers, a community group,
/// two answer points, an answer point group and four destinations.
class MainWindowOnProject : public testing::Test {
protected:
    MainWindowOnProject() {
        fillProject();
        gsVersion = "1.00.0001";
        window_ = std::make_unique<FrmMain>();
        window_->resize(1280, 800);
        bringIn();
        window_->show();
        QApplication::setActiveWindow(window_.get());
    }

    void fillProject() {
        Database& groups = customerGroupsDatabase();
        createVocabularyTable(groups, DatabaseKind::CustomerGroups, "TblCommunityGroupsName");
        for (const char* table : {"TblKeyNumbers", "TblKeyCountries", "TblCallSummary1"})
            createVocabularyTable(*gdbProject, DatabaseKind::Project, table);
        for (const char* statement :
             {"INSERT INTO TblKeyNumbers (Number1) VALUES ('0800')",
              "INSERT INTO TblKeyNumbers (Number1) VALUES ('0845')",
              "INSERT INTO TblKeyCountries (Number1) VALUES ('Leeds')",
              "INSERT INTO TblKeyCountries (Number1) VALUES ('York')",
              "INSERT INTO TblCallSummary1 (SBSStartDate, SBSEndDate) VALUES (#3/1/2025#, #5/31/2025#)"})
            gdbProject->execute(statement);
        groups.execute("INSERT INTO TblCommunityGroupsName (TallyAccount, Name) VALUES ('ACC', 'Sales')");
        groups.execute(
            "INSERT INTO TblAnswerPoints (TallyAccount, Reference, GroupName) VALUES ('ACC', 'Leeds', 'North')");
        SmallCall call{.caller = "1", .code = "01", .answerInd = "0"};
        std::vector<SmallCall> calls;
        for (const char* destination : {"D10", "D12", "D123", "E1"}) {
            call.destination = destination;
            calls.push_back(call);
        }
        installation_.addCalls(calls);
    }
    /// As the opening of a project does.
    void bringIn() {
        window_->Setup_Dates();
        window_->Setup_Location_List();
        window_->Setup_Inbound_List();
        window_->showProjectName("project");
        window_->EnableForm();
    }

    template<typename Control>
    Control* find(const QString& name) const {
        auto* control = window_->findChild<Control*>(name);
        if (!control)
            throw std::runtime_error("there is no control " + name.toStdString());
        return control;
    }
    QWidget* widget(const QString& name) const { return find<QWidget>(name); }
    QComboBox* box(const QString& name) const { return find<QComboBox>(name); }
    QDateTimeEdit* picker(const QString& name) const { return find<QDateTimeEdit>(name); }
    QDateTimeEdit* picker(int index) const { return picker(QStringLiteral("DTPicker1_%1").arg(index)); }
    bool checked(const QString& name) const { return find<QAbstractButton>(name)->isChecked(); }
    std::string textOf(const QString& name) const { return box(name)->currentText().toStdString(); }

    void click(const QString& name) const {
        auto* button = find<QAbstractButton>(name);
        const QPoint at = button->inherits("QRadioButton") || button->inherits("QCheckBox")
                              ? QPoint(10, button->height() / 2)
                              : button->rect().center();
        QTest::mouseClick(button, Qt::LeftButton, {}, at);
        QApplication::processEvents();
    }
    void closeProject() { gdbProject.reset(); }
    std::vector<std::string> takeMessages() { return std::exchange(prompts_.texts, {}); }

    SmallInstallation installation_;
    ScriptedPrompts prompts_;
    std::unique_ptr<FrmMain> window_;
};

using Messages = std::vector<std::string>;
