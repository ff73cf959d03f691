// SPDX-License-Identifier: MIT
#include "platform/qt/QtAlerts.h"

#include "platform/qt/Log.h"

#include <QLabel>
#include <QMessageBox>

#include <algorithm>

namespace moravel {

namespace {

constexpr qsizetype MostOpen = 20;
constexpr qsizetype LongestText = 4000; // characters
constexpr qsizetype LongestWord =
    60; // characters; a longer one would widen the box past the screen

QString displayText(const QString &text)
{
    const QChar breakHere(0x200B); // zero width space
    QString shown;
    qsizetype word = 0;
    for (const QChar c : QStringView(text).left(LongestText)) {
        word = c.isSpace() ? 0 : word + 1;
        if (word > LongestWord && !c.isLowSurrogate()) {
            shown += breakHere;
            word = 1;
        }
        shown += c;
    }
    if (text.size() > LongestText)
        shown += QChar(0x2026); // ellipsis
    return shown;
}

} // namespace

QtAlerts::QtAlerts() = default;

QtAlerts::~QtAlerts()
{
    for (const auto &box : std::as_const(m_open))
        delete box;
}

void QtAlerts::setParentWindow(QWidget *window)
{
    m_window = window;
}

bool QtAlerts::isOpen(const QString &title, const QString &text)
{
    m_open.removeIf([](const auto &box) { return !box || !box->isVisible(); });
    return std::any_of(m_open.cbegin(), m_open.cend(), [&](const auto &box) {
        return box->text() == title && box->informativeText() == text;
    });
}

void QtAlerts::alert(const QString &title, const QString &text)
{
    const QString shownTitle = displayText(title);
    const QString shownText = displayText(text);
    if (isOpen(shownTitle, shownText))
        return;
    if (m_open.size() >= MostOpen) {
        qCWarning(lcQt) << "too many open alerts, not shown:" << shownTitle << shownText;
        return;
    }
    const bool onWindow = m_window && m_window->isVisible();
    auto *box = new QMessageBox(onWindow ? m_window.data() : nullptr);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setObjectName(QStringLiteral("alert"));
    box->setIcon(QMessageBox::Warning);
    box->setStandardButtons(QMessageBox::Ok);
    box->setTextFormat(Qt::PlainText);
    box->setWindowTitle(shownTitle);
    box->setText(shownTitle);
    box->setInformativeText(shownText);
    // setTextFormat() covers the upper label alone; the lower one would guess markup.
    for (QLabel *label : box->findChildren<QLabel *>())
        label->setTextFormat(Qt::PlainText);
    m_open.append(box);
    box->setWindowModality(onWindow ? Qt::WindowModal : Qt::NonModal);
    box->show();
}

} // namespace moravel
