// SPDX-License-Identifier: MIT
#pragma once

#include "support/FakeMainLoop.h"
#include "support/FakePlatform.h"
#include "support/Test.h"

#include "base/DatePicker.h"
#include "base/Preferences.h"
#include "mainwindow/CellWidget.h"
#include "mainwindow/DateNavigation.h"
#include "mainwindow/GridView.h"
#include "mainwindow/MainView.h"
#include "mainwindow/MainWindow.h"
#include "mainwindow/SourceGrid.h"
#include "mainwindow/ToolTips.h"
#include "thumb/ThumbCells.h"

#include <QList>
#include <QPair>

namespace moravel::testing {

/// Everything of the main window, wired as the application does it, on fakes.
struct WindowFixture
{
    explicit WindowFixture(const ThumbCommands &commands = {}) : cells(images(), commands)
    {
        cells.createSpecialCells(loop.now());
        datePicker.autoChangeDate = true;
        datePicker.setMaximumDate(loop.now());
        datePicker.setDateValue(loop.now());
        navigation = std::make_unique<DateNavigation>(
            datePicker, loop,
            DateNavigationPorts{[this] { ++forgotten; }, [this](double s) { passes += s; }});
        datePicker.autoChangeDate = false;
        toolTips = std::make_unique<ToolTips>(cells, preferences);
        window = std::make_unique<MainWindow>(cells, datePicker, *navigation, *toolTips);
        SourceGridPorts ports;
        ports.startPass = [this](double s) { passes += s; };
        ports.rotateDesktop = [this](double s) { rotations += s; };
        ports.retry = [this] { ++retries; };
        sources = std::make_unique<SourceGrid>(cells, preferences, loop, *window, ports);
    }

    static ThumbImages images()
    {
        QImage blank(8, 6, QImage::Format_RGB32);
        blank.fill(Qt::lightGray);
        return {blank, blank, blank};
    }

    /// Builds the grid with sources "s0" "Source 0", "s1" "Source 1" and so on.
    void build(int count)
    {
        QMap<QString, QString> names;
        for (int i = 0; i < count; ++i)
            names.insert(u"s%1"_s.arg(i, 2, 10, QChar(u'0')), u"Source %1"_s.arg(i));
        sources->drawCheckboxesAndThumbs(names);
    }

    /// Finds a control by the name of its field.
    template <typename T = QWidget>
    T *find(const char *name, const QWidget *in = nullptr) const
    {
        return (in ? in : window.get())->template findChild<T *>(QLatin1String(name));
    }

    CellWidget *cell(int index) const
    {
        return window->grid().cellWidget(static_cast<std::size_t>(index));
    }

    FakeMainLoop loop;
    FakeDefaults defaults;
    Preferences preferences{defaults};
    DatePicker datePicker;
    ThumbCells cells;
    std::unique_ptr<DateNavigation> navigation;
    std::unique_ptr<ToolTips> toolTips;
    std::unique_ptr<MainWindow> window;
    std::unique_ptr<SourceGrid> sources;
    QList<double> passes; ///< Delays of the passes asked for.
    QList<double> rotations;
    int forgotten = 0;
    int retries = 0;
};

} // namespace moravel::testing
