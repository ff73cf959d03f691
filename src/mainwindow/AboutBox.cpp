// SPDX-License-Identifier: MIT
#include "mainwindow/AboutBox.h"

#include "platform/Texts.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTextOption>

// Outside of any namespace, as the macro wants it.
static void registerLicence()
{
    Q_INIT_RESOURCE(mainwindow_icons); // a static library does not register its resources by itself
}

namespace moravel {

namespace {

constexpr int IconPoints = 72;

QString licence()
{
    registerLicence();
    QFile file(QStringLiteral(":/moravel/mainwindow/LICENSE"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    // The lines of a paragraph become one, so that they wrap as the box wants.
    static const QRegularExpression lineEnd(QStringLiteral("(?<!\n)\n(?!\n)"));
    return QString::fromUtf8(file.readAll()).trimmed().replace(lineEnd, QStringLiteral(" "));
}

QString licences()
{
    return Texts::tr("Moravel is free software:") + QLatin1String("\n\n") + licence()
        + QLatin1String("\n\n") + Texts::tr("It uses these libraries, each under its own licence:")
        + QStringLiteral("\n\nQt 6 \u2013 LGPL 3\nICU \u2013 Unicode licence\n"
                         "GLib and GIO \u2013 LGPL 2.1 or later\nlibxcb \u2013 MIT\n"
                         "zlib \u2013 zlib licence\ntl::expected \u2013 CC0");
}

QString credits(const AboutText &text)
{
    if (text.sources.isEmpty())
        return Texts::tr("No source is known yet: the service has not answered.");
    return Texts::tr("The pictures belong to those who made them. They come from:")
        + QLatin1String("\n\n") + text.sources.join(u'\n') + QLatin1String("\n\n")
        + Texts::tr("They were found by the service at %1.").arg(text.service);
}

QPlainTextEdit *makePage(const QString &objectName, const QString &text)
{
    auto *page = new QPlainTextEdit(text);
    page->setObjectName(objectName);
    page->setReadOnly(true);
    page->setTextInteractionFlags(Qt::TextSelectableByMouse
                                  | Qt::TextSelectableByKeyboard); // its cursor shows the focus
    page->setTabChangesFocus(true);
    page->setFrameShape(QFrame::NoFrame);
    page->document()->setDocumentMargin(10);
    QTextOption option = page->document()->defaultTextOption();
    option.setAlignment(text.isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft);
    page->document()->setDefaultTextOption(option);
    return page;
}

QLabel *makeLabel(const QString &text, QWidget *parent, double size = 1)
{
    auto *label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    // The program's name stays on the side where the texts begin.
    label->setAlignment(Qt::AlignVCenter | Qt::AlignAbsolute
                        | (parent->isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft));
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * size);
    font.setBold(size > 1);
    label->setFont(font);
    return label;
}

QDialog *makeBox(QWidget *window, const AboutText &text)
{
    auto *box = new QDialog(window);
    box->setObjectName(QStringLiteral("aboutBox"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowTitle(Texts::tr("About Moravel"));
    auto *icon = new QLabel(box);
    icon->setPixmap(text.icon.pixmap(QSize(IconPoints, IconPoints), window->devicePixelRatioF()));
    auto *tabs = new QTabWidget(box);
    tabs->addTab(makePage(QStringLiteral("aboutSources"), credits(text)), Texts::tr("&Sources"));
    tabs->addTab(makePage(QStringLiteral("aboutLicences"), licences()), Texts::tr("&Licences"));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, box);
    QObject::connect(buttons, &QDialogButtonBox::rejected, box, &QDialog::reject);
    buttons->button(QDialogButtonBox::Close)->setDefault(true);
    auto *grid = new QGridLayout(box);
    grid->setContentsMargins(20, 20, 20, 16);
    grid->setHorizontalSpacing(18);
    grid->setColumnStretch(1, 1);
    grid->addWidget(icon, 0, 0, 3, 1, Qt::AlignTop);
    grid->addWidget(makeLabel(QStringLiteral("Moravel"), box, 1.6), 0, 1);
    grid->addWidget(makeLabel(Texts::tr("Version %1").arg(text.version), box), 1, 1);
    grid->addWidget(
        makeLabel(Texts::tr("Shows the pictures of the day of many sources side by side, keeps "
                            "every one with its caption, and makes any of them the desktop "
                            "picture."),
                  box),
        2, 1);
    grid->setRowMinimumHeight(3, 8);
    grid->addWidget(tabs, 4, 0, 1, 2);
    grid->setRowStretch(4, 1);
    grid->addWidget(buttons, 5, 0, 1, 2);
    buttons->button(QDialogButtonBox::Close)->setFocus();
    box->resize(480, 480);
    return box;
}

} // namespace

void showAbout(QWidget *window, const AboutText &text)
{
    auto *box = window->findChild<QDialog *>(QStringLiteral("aboutBox"));
    if (!box)
        box = makeBox(window, text);
    box->open();
    box->raise();
}

} // namespace moravel
