// SPDX-License-Identifier: MIT
#include "mainwindow/Contrast.h"

#include "WindowFixture.h"

#include "mainwindow/FlippedClipView.h"
#include "mainwindow/Spinner.h"

namespace {

TEST(ContrastTest, allOurTextsAreReadable)
{
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(contrast(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.01);
    const Table<QColor, QColor, QColor, QColor> desktops{
        // text, ground, what is selected, link
        {Qt::black, QColor(0xef, 0xef, 0xef), QColor(48, 140, 198), Qt::blue},
        {Qt::white, QColor(0x2a, 0x2e, 0x32), QColor(61, 174, 233), Qt::blue},
        {QColor(0xee, 0xee, 0xec), QColor(0x35, 0x35, 0x35), QColor(255, 200, 0), Qt::yellow},
    };
    const QPalette usual = QApplication::palette();
    for (const auto &[text, ground, selected, link] : desktops) {
        SCOPED_TRACE(ground.name().toStdString());
        QPalette desktop(ground);
        desktop.setColor(QPalette::Text, text);
        desktop.setColor(QPalette::Highlight, selected);
        desktop.setColor(QPalette::HighlightedText, Qt::white);
        desktop.setColor(QPalette::Link, link);
        QApplication::setPalette(desktop);
        const QPalette grid = FlippedClipView::lightPalette();
        const auto expectReadable = [&](QPalette::ColorRole front, QPalette::ColorRole back,
                                        QPalette::ColorGroup group = QPalette::Active) {
            EXPECT_GE(contrast(grid.color(group, front), grid.color(group, back)), TextContrast)
                << front << back;
        };
        expectReadable(QPalette::Text, QPalette::Base);
        expectReadable(QPalette::WindowText, QPalette::Window);
        expectReadable(QPalette::WindowText, QPalette::Window, QPalette::Disabled);
        expectReadable(QPalette::HighlightedText, QPalette::Highlight);
        expectReadable(QPalette::Link, QPalette::Window);
        EXPECT_GE(contrast(quietText(text, ground), ground), TextContrast);
        EXPECT_GE(contrast(readableOn(ground, link), ground), TextContrast);
    }
    QApplication::setPalette(usual);
}

TEST(ContrastTest, spinnersStandStillForThoseWhomMotionDisturbs)
{
    Spinner spinner;
    spinner.show();
    spinner.grab();
    const bool moves = spinner.isTicking();
    const QImage wheel = spinner.grab().toImage();
    Spinner::setMotionAllowed(false);
    const QImage dots = spinner.grab().toImage();
    EXPECT_TRUE(!moves || dots != wheel);
    EXPECT_TRUE(waitFor([&] { return !spinner.isTicking(); }));
    Spinner::setMotionAllowed(true);
    spinner.grab();
    EXPECT_EQ(spinner.isTicking(), moves);
}

} // namespace
