#include "groups/windows/frmGroupSaveQuery.h"

#include "ui/AppIcon.h"
#include "ui/modBranding.h"
#include "ui/uctHeader.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr int textWidth = 420;

struct AnswerButton {
    const char* name;
    const char* caption;
    MembershipAnswer answer;
};
constexpr AnswerButton answerButtons[] = {{"cmdYes", "&Yes", MembershipAnswer::Yes},
                                          {"cmdYesAll", "Yes to &All", MembershipAnswer::YesToAll},
                                          {"cmdNo", "&No", MembershipAnswer::No},
                                          {"cmdNoAll", "No &to All", MembershipAnswer::NoToAll}};

} // namespace

frmGroupSaveQuery::frmGroupSaveQuery(QWidget* parent) : QDialog(parent), lblInfo(new QLabel(this)) {
    setObjectName(QStringLiteral("frmGroupSaveQuery"));
    setWindowTitle(tr("Customer Groups"));
    setModal(true);
    auto* header = new uctHeader(this);
    header->setHeaderType(uctHeader::Style::Prompt);
    header->setTitle(windowTitle());
    header->SetPicture(appIcon());
    lblInfo->setObjectName(QStringLiteral("lblInfo"));
    lblInfo->setTextFormat(Qt::PlainText);
    lblInfo->setWordWrap(true);
    lblInfo->setMinimumWidth(textWidth);

    auto* row = new QHBoxLayout;
    row->setContentsMargins(24, 8, 24, 16);
    row->addStretch();
    for (const AnswerButton& each : answerButtons) {
        auto* button = new QPushButton(tr(each.caption), this);
        button->setObjectName(QString::fromLatin1(each.name));
        button->setDefault(each.answer == MembershipAnswer::No);
        connect(button, &QPushButton::clicked, this, [this, answer = each.answer] {
            answer_ = answer;
            accept();
        });
        row->addWidget(button);
    }
    auto* window = new QVBoxLayout(this);
    window->setContentsMargins(0, 0, 0, 0);
    window->addWidget(header);
    lblInfo->setContentsMargins(24, 16, 24, 8);
    window->addWidget(lblInfo, 1);
    window->addLayout(row);
    setFormFonts(*this);
}

void frmGroupSaveQuery::QueryUser(const std::string& Reference, const std::string& GroupName, bool Adding,
                                  MembershipAnswer& Result) {
    lblInfo->setText(QString::fromStdString(membershipQuestion(Reference, GroupName, Adding)));
    answer_ = MembershipAnswer::No;
    exec();
    Result = answer_;
}
