// SPDX-License-Identifier: MIT
#pragma once

#include "app/DesktopSide.h"
#include "app/ShareSide.h"
#include "mainwindow/LargePic.h"
#include "mainwindow/ToolTips.h"
#include "service/PictureService.h"

namespace moravel {

/// Ties the large picture window to the service client, the desktop side and the main window.
class LargePicSide : public LargePicPort
{
public:
    /// All references, and @p desktop if there is one, must outlive this object.
    LargePicSide(const ServiceContext &context, PictureService &service, ShareSide &share,
                 DesktopSide *desktop);

    /// Offers the window's command in the View menu of the main window.
    void attachWindow(MainWindow &window, ToolTips &toolTips);

    LargePic &largePic() { return m_largePic; }

    /// Shows the cell that the keyboard is at, else the desktop's, else the first of the grid. Returns the
    /// window; null when no cell has a picture.
    QWidget *showSomePic();

    bool isVisible() const override { return m_largePic.isVisible(); }

    QString currentLargePicPath() const override { return m_largePic.currentLargePicPath(); }

    bool isShowing(const ThumbView &cell) const override
    {
        return m_largePic.currentThumb() == &cell;
    }

    void showLargePic(ThumbView &cell) override { m_largePic.showAgain(cell); }

    void showProgress(std::optional<float> percent, const QString &text) override
    {
        m_largePic.showProgress(percent, text);
    }

    void hideProgress() override { m_largePic.hideProgress(); }

    void hideCantShow() override { m_largePic.hideCantShow(); }

    void showFailure() override { m_largePic.showFailure(); }

    void showLookingForInfo() override { m_largePic.showLookingForInfo(); }

    void displayPicFile(const QString &path) override { m_largePic.displayPicFile(path); }

private:
    LargePicPorts ports(PictureService &service, ShareSide &share, DesktopSide *desktop);
    void addDesktopPorts(LargePicPorts &ports, DesktopSide &desktop) const;
    ThumbView *cellToShow() const;

    ServiceContext m_context;
    LargePic m_largePic;
};

} // namespace moravel
