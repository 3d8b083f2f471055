// Contrast of text is measured on what is drawn, in every state of a control.
#include "ui/Contrast.h"
#include "ui/DetailList.h"
#include "ui/Skin.h"
#include "ui/ucWebbyBorder.h"
#include "ui/ucWebbyLink.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QTest>

#include <functional>
#include <map>
#include <memory>

namespace {

constexpr double scale = 3; // thick enough strokes for a pixel that is text alone

QImage drawn(QWidget& widget) {
    QImage image(widget.size() * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(QApplication::palette().color(QPalette::Window));
    widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

/// Between the ground, the commonest colour of the widget's middle, and what differs most from it there.
double measuredContrast(QWidget& widget) {
    const QImage image = drawn(widget);
    const int edge = static_cast<int>(5 * scale); // lines and rings
    std::map<QRgb, int> counts;
    for (int y = edge; y < image.height() - edge; ++y)
        for (int x = edge; x < image.width() - edge; ++x)
            ++counts[image.pixel(x, y)];
    const auto ground = std::max_element(counts.begin(), counts.end(),
                                         [](const auto& a, const auto& b) { return a.second < b.second; });
    double most = 1;
    for (const auto& [colour, count] : counts)
        most = std::max(most, contrastRatio(QColor(colour), QColor(ground->first)));
    return most;
}

enum class State { Plain, Hover, Pressed, Focus, Disabled };

constexpr std::pair<State, const char*> states[] = {{State::Plain, "plain"},
                                                    {State::Hover, "hover"},
                                                    {State::Pressed, "pressed"},
                                                    {State::Focus, "focus"},
                                                    {State::Disabled, "disabled"}};

void put(QWidget& control, State state) {
    control.setEnabled(state != State::Disabled);
    if (auto* button = qobject_cast<QAbstractButton*>(&control))
        button->setDown(state == State::Pressed);
    control.show();
    control.activateWindow();
    QApplication::processEvents();
    if (state == State::Focus)
        control.setFocus(Qt::TabFocusReason);
    else
        control.clearFocus();
    QApplication::processEvents();
    const bool over = state == State::Hover || state == State::Pressed;
    const QPointF place = over ? QRectF(control.rect()).center() : QPointF(-9, -9);
    QMouseEvent move(QEvent::MouseMove, place, control.mapToGlobal(place), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    control.setAttribute(Qt::WA_UnderMouse, over); // wherever the mouse is
    QApplication::sendEvent(&control, &move);
}

void expectReadable(QWidget& control, const std::string& name) {
    for (const auto& [state, told] : states) {
        put(control, state);
        EXPECT_GE(measuredContrast(control), leastTextContrast) << name << ", " << told;
    }
}

TEST(Contrast, TellsTheRatioOfTwoColours) {
    EXPECT_NEAR(contrastRatio(Qt::black, Qt::white), 21.0, 0.01);
    EXPECT_NEAR(contrastRatio(Qt::red, Qt::red), 1.0, 0.001);
    EXPECT_NEAR(contrastRatio(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.01) << "a grey known to be a bit too light";
}

TEST(Contrast, IsEnoughOnLinksAndButtons) {
    applySkin(*qApp);
    using Kind = ucWebbyLink::Kind;
    for (const Kind kind : {Kind::Link, Kind::Outlined, Kind::Primary, Kind::Danger}) {
        ucWebbyLink link("Population figures", kind);
        expectReadable(link, "link of kind " + std::to_string(static_cast<int>(kind)));
    }
    for (const char* kind : {"", "primary", "danger"}) {
        QPushButton button("Population figures");
        button.setProperty("kind", kind);
        expectReadable(button, std::string("button ") + kind);
    }
}

TEST(Contrast, IsEnoughOnEveryColourOfTheParameterPanels) {
    applySkin(*qApp);
    const cColours_CS c;
    for (const Colour back : {c.Param_DateTime(), c.Param_CostRevenue(), c.Param_Duration(), c.Param_RingTime(),
                              c.Param_Ineffective(), c.Param_Groups(), c.Param_AccCostCentre()}) {
        ucWebbyLink link("Population figures", ucWebbyLink::Kind::Outlined);
        link.setBackColour(toColor(back));
        expectReadable(link, toColor(back).name().toStdString());
    }
}

TEST(Contrast, IsEnoughOnLabelsAndFields) {
    applySkin(*qApp);
    for (const char* role : {"", "title", "headline", "caption", "hint", "detail", "step", "section", "message"}) {
        QLabel label("Population figures");
        label.setMargin(8);
        label.setProperty("role", role);
        expectReadable(label, std::string("label ") + role);
    }
    const std::pair<const char*, std::function<QWidget*()>> fields[] = {
        {"text", [] { return new QLineEdit("Population"); }},
        {"hint in a text",
         [] {
             auto* box = new QLineEdit;
             box->setPlaceholderText("Population");
             return box;
         }},
        {"list",
         [] {
             auto* list = new QComboBox;
             list->addItem("Population");
             return list;
         }},
        {"date", [] { return new QDateEdit(QDate(2025, 3, 1)); }},
        {"check", [] { return new QCheckBox("Population"); }},
        {"option", [] { return new QRadioButton("Population"); }},
    };
    for (const auto& [name, make] : fields) {
        const std::unique_ptr<QWidget> field(make());
        field->resize(field->sizeHint());
        expectReadable(*field, name);
    }
}

TEST(Contrast, IsEnoughInPanelsFootersAndGrids) {
    applySkin(*qApp);
    ucWebbyBorder panel;
    panel.setCaption("Population figures");
    panel.resize(200, 50);
    expectReadable(panel, "caption of a panel");
    DetailList details;
    details.setDetails({"From 01/03/2025", "All answer points"});
    details.resize(160, 40);
    expectReadable(details, "details");
    QTableWidget grid(1, 1);
    grid.setItem(0, 0, new QTableWidgetItem("London"));
    grid.setHorizontalHeaderLabels({"Region"});
    expectReadable(*grid.viewport(), "cell");
    expectReadable(*grid.horizontalHeader()->viewport(), "head");
    grid.selectAll();
    expectReadable(*grid.viewport(), "selected cell");
}

TEST(Contrast, IsEnoughInThePalette) {
    applySkin(*qApp);
    const QPalette palette = QApplication::palette();
    using P = QPalette;
    const std::pair<P::ColorRole, P::ColorRole> pairs[] = {{P::WindowText, P::Window},
                                                           {P::Text, P::Base},
                                                           {P::HighlightedText, P::Highlight},
                                                           {P::PlaceholderText, P::Base},
                                                           {P::ToolTipText, P::ToolTipBase}};
    for (const auto& [text, ground] : pairs)
        EXPECT_GE(contrastRatio(palette.color(text), palette.color(ground)), leastTextContrast) << text;
    for (const auto group : {P::Active, P::Disabled})
        EXPECT_GE(contrastRatio(palette.color(group, P::WindowText), palette.color(P::Window)), leastTextContrast);
}

/// Hover, focus and disabled must be seen; a picture that does not change tells nothing.
TEST(States, DifferVisibly) {
    applySkin(*qApp);
    const auto expectAllDifferent = [](QWidget& control, const char* name) {
        std::vector<QImage> pictures;
        for (const State state : {State::Plain, State::Hover, State::Focus, State::Disabled}) {
            put(control, state);
            const QImage picture = drawn(control);
            for (const QImage& other : pictures)
                EXPECT_NE(picture, other) << name << ", state " << static_cast<int>(state);
            pictures.push_back(picture);
        }
    };
    using Kind = ucWebbyLink::Kind;
    for (const Kind kind : {Kind::Link, Kind::Outlined, Kind::Primary, Kind::Danger}) {
        ucWebbyLink link("Help", kind);
        expectAllDifferent(link, "link");
    }
    for (const char* kind : {"", "primary", "danger"}) {
        QPushButton button("Help");
        button.setProperty("kind", kind);
        expectAllDifferent(button, kind);
    }
    QCheckBox check("Overnight");
    expectAllDifferent(check, "check box");
    QComboBox list;
    list.addItem("All");
    expectAllDifferent(list, "list");
}

} // namespace
