// SPDX-License-Identifier: MIT
// The whole application, as App.h plays it, asked by other processes.
#include "App.h"

#include "app/CurrentPicture.h"

namespace {

struct Remote : RemoteControl
{
    /// Asks for "action argument"; returns the error, else path and source that were answered.
    QString ask(App &app, const QString &line)
    {
        QString told = u"nothing"_s;
        onAction(line.section(u' ', 0, 0), {line.section(u' ', 1)}, [&told](const Result &result) {
            told = !result ? result.error()
                           : result->value(u"path"_s).toString().section(u'/', -1)
                    + result->value(u"source"_s).toString();
        });
        app.run(0.2);
        return told;
    }

    void letToFront(QWindow &window) override { front = window.title(); }

    QString front;
};

TEST(Remote, controlsTheApplication)
{
    const TempHome home;
    App app(home, allSources(), true);
    Remote remote;
    app.delegate.attachRemoteControl(remote);
    EXPECT_EQ(remote.ask(app, u"large"_s), u"There is nothing to show yet."_s);
    app.run(20);
    const QString text = home.write(u"a.txt"_s, "no picture");
    const char *const noFile = "There is no such file; its path must be absolute.";
    const Table<QString, const char *, const char *> table{
        {u"set "_s + home.path(u"Pictures/Moravel/A.jpg"_s), "", ""},
        {u"current"_s, "A.jpgSea & Land", ""},
        {u"set "_s + text, "The file is not a picture that can be read.", ""},
        {u"set A.jpg"_s, noFile, ""},
        {u"set /dev/zero"_s, noFile, ""},
        {u"set /"_s + QString(5000, u'/'), noFile, ""},
        {u"show"_s, "", "Moravel"},
        {u"large"_s, "", "Sea & Land"},
        {u"browser"_s, "", "Picture Browser"},
        {u"sources nobody"_s, "", "Moravel"},
        {u"format"_s, "There is no command \"format\".", ""},
    };
    expectWarning(u"no source is called nobody"_s);
    for (const auto &[asked, told, front] : table) {
        SCOPED_TRACE(qPrintable(asked.left(50)));
        remote.front.clear();
        EXPECT_EQ(remote.ask(app, asked), QString::fromUtf8(told));
        EXPECT_EQ(remote.front.section(u" - "_s, 0, 0), QLatin1String(front));
    }
    EXPECT_EQ(pictureText({{u"path"_s, u"/\x1b[2J"_s}, {u"other"_s, u"x"_s}}),
              u"File:    / [2J\n"_s);
}

} // namespace
