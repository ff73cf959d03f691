// SPDX-License-Identifier: MIT
#include "mainwindow/Sheet.h"

#include "mainwindow/CaptionLabel.h"
#include "platform/Texts.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QTextDocument>
#include <QTextEdit>
#include <QtMath>

#include <algorithm>

namespace moravel {

namespace {

constexpr int IconPoints = 48;
constexpr int TextWidth = 400; // points
constexpr int MostTitleLines = 8;
constexpr int MostTextHeight = 320; // points; a longer text scrolls
constexpr qsizetype LongestText =
    32 * 1024; // characters; the layout of more would stall the window
constexpr qsizetype MoreThanFits = 4000; // characters; they are higher than MostTextHeight
constexpr auto WrapMode = QTextOption::WrapAtWordBoundaryOrAnywhere;

// A text edit knows the width of its text only when it is shown.
int heightOf(const QString &text, const QFont &font)
{
    QTextDocument document;
    document.setDefaultFont(font);
    document.setDocumentMargin(0);
    QTextOption option;
    option.setWrapMode(WrapMode);
    document.setDefaultTextOption(option);
    document.setPlainText(text);
    document.setTextWidth(TextWidth);
    return qCeil(document.size().height());
}

/// A plain text that wraps everywhere, can be copied from, and scrolls where it is long.
QTextEdit *makeText(const QString &text, QWidget *parent)
{
    auto *edit = new QTextEdit(parent);
    edit->setObjectName(QStringLiteral("sheetText"));
    edit->setReadOnly(true);
    edit->setTextInteractionFlags(Qt::TextSelectableByMouse
                                  | Qt::TextSelectableByKeyboard); // its cursor shows the focus
    edit->setTabChangesFocus(true);
    edit->setFrameShape(QFrame::NoFrame);
    edit->viewport()->setAutoFillBackground(false);
    edit->setWordWrapMode(WrapMode);
    edit->document()->setDocumentMargin(0);
    edit->setPlainText(text.size() <= LongestText ? text : text.left(LongestText) + QChar(0x2026));
    const int height = heightOf(text.left(MoreThanFits), edit->font());
    edit->setFixedSize(TextWidth, std::min(height, MostTextHeight));
    edit->setVerticalScrollBarPolicy(height <= MostTextHeight ? Qt::ScrollBarAlwaysOff
                                                              : Qt::ScrollBarAlwaysOn);
    return edit;
}

QLabel *makeIcon(Sheet::Style style, QWidget *parent)
{
    auto *label = new QLabel(parent);
    const QIcon icon = parent->style()->standardIcon(style == Sheet::Style::Warning
                                                         ? QStyle::SP_MessageBoxWarning
                                                         : QStyle::SP_MessageBoxInformation);
    label->setPixmap(icon.pixmap(QSize(IconPoints, IconPoints), parent->devicePixelRatioF()));
    return label;
}

CaptionLabel *makeTitle(const QString &title, QWidget *parent)
{
    auto *label = new CaptionLabel(MostTitleLines, parent);
    label->setObjectName(QStringLiteral("sheetTitle"));
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    label->setText(title.trimmed());
    label->setFixedSize(TextWidth, label->heightForWidth(TextWidth));
    return label;
}

QDialog *openSheet(const QWidget *window, const Sheet &sheet)
{
    const auto dialogs = window
        ? window->findChildren<QDialog *>(QStringLiteral("sheet"), Qt::FindDirectChildrenOnly)
        : QList<QDialog *>();
    const auto same = std::find_if(dialogs.begin(), dialogs.end(), [&](const QDialog *dialog) {
        return dialog->isVisible() && dialog->accessibleName() == sheet.title
            && dialog->accessibleDescription() == sheet.text;
    });
    return same == dialogs.end() ? nullptr : *same;
}

} // namespace

void showSheet(QWidget *window, const Sheet &sheet, std::function<void()> ended)
{
    if (QDialog *open = openSheet(window, sheet)) {
        open->raise();
        return;
    }
    auto *dialog = new QDialog(window);
    dialog->setObjectName(QStringLiteral("sheet"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(Texts::tr("Moravel"));
    dialog->setAccessibleName(sheet.title);
    dialog->setAccessibleDescription(sheet.text);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok, dialog);
    QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    auto *grid = new QGridLayout(dialog);
    grid->setContentsMargins(20, 20, 20, 16);
    grid->setHorizontalSpacing(18);
    grid->setVerticalSpacing(10);
    grid->setSizeConstraint(QLayout::SetFixedSize);
    grid->addWidget(makeIcon(sheet.style, dialog), 0, 0, 3, 1, Qt::AlignTop);
    grid->addWidget(makeTitle(sheet.title, dialog), 0, 1);
    if (!sheet.text.isEmpty())
        grid->addWidget(makeText(sheet.text, dialog), 1, 1);
    grid->setColumnMinimumWidth(1, TextWidth);
    grid->setRowMinimumHeight(2, 6);
    grid->addWidget(buttons, 3, 0, 1, 2);
    if (ended)
        QObject::connect(dialog, &QDialog::finished, dialog, ended);
    buttons->button(QDialogButtonBox::Ok)->setFocus();
    dialog->open();
}

} // namespace moravel
