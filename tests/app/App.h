// SPDX-License-Identifier: MIT
#pragma once

#include "support/DiskTrash.h"
#include "support/FakeDesktopPictures.h"
#include "support/FakeHttp.h"
#include "support/FakeImages.h"
#include "support/FakeMainLoop.h"
#include "support/FakePlatform.h"
#include "support/FakeThumbnails.h"
#include "support/HomeFiles.h"
#include "support/Test.h"

#include "app/MoravelAppDelegate.h"
#include "platform/linux/PosixFiles.h"
#include "platform/qt/QtDefaults.h"

#include <QUrlQuery>

namespace moravel::testing {

class FakeSurroundings : public Surroundings
{
public:
    SurroundingsState state() const override { return now; }

    void set(const SurroundingsState &state)
    {
        now = state;
        if (onChanged)
            onChanged();
    }

    SurroundingsState now;
};

class FakeAutostart : public Autostart
{
public:
    bool isOn() const override { return on; }

    void setOn(bool wanted, std::function<void(const tl::expected<void, QString> &)> done) override
    {
        if (!refusal.isEmpty())
            return done(tl::unexpected(refusal));
        on = wanted;
        done({});
    }

    bool on = false;
    QString refusal;
};

/// With every source switched on.
inline Options allSources(bool hidden = false)
{
    Options options;
    options.sources = QStringList{u"all"_s};
    options.hidden = hidden;
    return options;
}

/// The whole application on a real disk, a virtual clock and a played service.
class App : private Tray, private Workspace, private Notifications
{
public:
    /// With a desktop, or where no desktop picture can be set.
    explicit App(const TempHome &home, Options options = {}, bool withDesktop = false)
        : files(home)
        , trash(home.path(u"Trash"_s))
        , defaults(home.path(u"prefs.ini"_s))
        , delegate({loop, http, defaults, files, alerts, images, random, &trash, nullptr,
                    &surroundings, &autostart},
                   withDesktop ? std::optional<DesktopPlatform>({&pictures, *this, *this, *this})
                               : std::nullopt,
                   {urls,
                    clipboard,
                    {u"fb"_s, u"tw"_s, u"http://service/potd"_s},
                    u"help@makers"_s,
                    u"1.2"_s},
                   std::move(options), &thumbnails)
    {
        http.answer = [this](const HttpRequest &request) { return serve(request); };
        delegate.applicationWillFinishLaunching();
        delegate.showWindow();
        loop.schedule(0, [this] { delegate.applicationDidFinishLaunching(); });
    }

    /// A part of the main window, by the name of its field.
    template <typename T = QWidget>
    T *find(const char *name)
    {
        return delegate.window().findChild<T *>(QLatin1String(name));
    }

    ThumbView &cell(int index) { return delegate.cells().at(index); }

    void run(double seconds)
    {
        for (int step = 0; step < qRound(seconds / 0.05); ++step) {
            loop.advance(0.05);
            while (http.deliver() || images.deliver() || pictures.deliver() || trash.deliver()) { }
        }
        QCoreApplication::processEvents();
    }

    std::optional<FakeHttp::Answer> serve(const HttpRequest &request)
    {
        const QString url = request.url.toString();
        if (down)
            return FakeHttp::Answer{{}, 500};
        if (url.endsWith("getSources.irev"_L1))
            return FakeHttp::Answer{"Astronomy\tB\nSea & Land\tA"};
        if (request.method != "POST")
            return FakeHttp::Answer{"IMG"};
        const QString id = QUrlQuery(QString::fromUtf8(request.body)).queryItemValue(u"source"_s);
        return FakeHttp::Answer{
            u"http://p\nCaption %1\nhttp://p/t%1.jpg\nhttp://p/%1.jpg\n\n\nInfo"_s.arg(id)
                .toUtf8()};
    }

    bool down = false;
    bool hasTray = false;
    QStringList others; ///< What the rest of the desktop was asked for.
    FakeMainLoop loop;
    FakeHttp http;
    HomeFiles files;
    DiskTrash trash;
    QtDefaults defaults;
    FakeAlerts alerts;
    FakeImages images;
    FakeRandom random;
    FakeSurroundings surroundings;
    FakeAutostart autostart;
    FakeThumbnails thumbnails;
    FakeDesktopPictures pictures;
    FakeUrlOpener urls;
    FakeClipboard clipboard;
    MoravelAppDelegate delegate;

private:
    void setImage(const QImage &) override { }

    bool isShown() const override { return hasTray; }

    void openDesktopSettings(std::function<void(const QString &)> done) override
    {
        others.append(u"settings"_s);
        done({});
    }

    void revealInFileManager(const QString &path) override { others.append(path); }

    void setGrowlDelegate(NotificationsDelegate *) override { }

    void notify(const Notification &) override { }
};

} // namespace moravel::testing
