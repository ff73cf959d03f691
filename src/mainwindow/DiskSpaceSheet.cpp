// SPDX-License-Identifier: MIT
#include "mainwindow/DiskSpaceSheet.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <numeric>

namespace moravel {

namespace {

constexpr int Limits[] = {0, 1, 2, 5, 10, 20}; // GB
constexpr QSize StartSize(460, 480);
constexpr int NumberWidth = 84; // points

enum Column { SourceColumn, PicturesColumn, SizeColumn };

QString sizeText(qint64 bytes)
{
    return QLocale().formattedDataSize(bytes, 1, QLocale::DataSizeTraditionalFormat);
}

QLabel *makeText(const QString &objectName, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(objectName);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QTreeWidget *makeTable(QWidget *parent)
{
    auto *table = new QTreeWidget(parent);
    table->setObjectName(QStringLiteral("shares"));
    table->setAccessibleName(DiskSpaceSheet::tr("Disk space by source"));
    table->setHeaderLabels(
        {DiskSpaceSheet::tr("Source"), DiskSpaceSheet::tr("Pictures"), DiskSpaceSheet::tr("Size")});
    table->setRootIsDecorated(false);
    table->setAlternatingRowColors(true);
    table->setUniformRowHeights(true);
    table->header()->setStretchLastSection(false);
    table->header()->setSectionsMovable(false);
    table->header()->setMinimumSectionSize(NumberWidth);
    table->header()->setSectionResizeMode(SourceColumn, QHeaderView::Stretch);
    for (const int column : {PicturesColumn, SizeColumn}) {
        table->header()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
        table->headerItem()->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    }
    return table;
}

} // namespace

DiskSpaceSheet::DiskSpaceSheet(QWidget *window, int gigabytes)
    : QDialog(window)
    , m_summary(makeText(QStringLiteral("summary"), this))
    , m_shares(makeTable(this))
    , m_consequence(makeText(QStringLiteral("consequence"), this))
{
    setObjectName(QStringLiteral("diskSpaceSheet"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Disk Space"));
    m_summary->setText(tr("Looking at the pictures…"));
    QWidget *limitRow = makeLimitRow(gigabytes); // before the buttons, as the Tab key goes
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(this, &QDialog::accepted, this, [this] {
        if (onAccepted)
            onAccepted(m_limit->currentData().toInt());
    });
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(20, 18, 20, 16);
    column->setSpacing(10);
    column->addWidget(m_summary);
    column->addWidget(m_shares, 1);
    column->addWidget(limitRow);
    column->addWidget(m_consequence);
    column->addSpacing(4);
    column->addWidget(buttons);
    m_consequence->setMinimumHeight(3 * m_consequence->fontMetrics().lineSpacing());
    m_consequence->setAlignment(Qt::AlignTop | Qt::AlignLeading);
    resize(StartSize);
    tellConsequence();
    m_shares->setFocus();
}

QWidget *DiskSpaceSheet::makeLimitRow(int gigabytes)
{
    auto *row = new QWidget(this);
    auto *label = new QLabel(tr("&Keep the pictures below:"), row);
    m_limit = new QComboBox(row);
    m_limit->setObjectName(QStringLiteral("limit"));
    for (const int limit : Limits)
        m_limit->addItem(limit == 0 ? tr("No Limit") : tr("%1 GB").arg(limit), limit);
    if (m_limit->findData(gigabytes) < 0) // from a file that was edited by hand
        m_limit->addItem(tr("%1 GB").arg(gigabytes), gigabytes);
    m_limit->setCurrentIndex(m_limit->findData(gigabytes));
    label->setBuddy(m_limit);
    connect(m_limit, &QComboBox::currentIndexChanged, this, &DiskSpaceSheet::tellConsequence);
    auto *columns = new QHBoxLayout(row);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->addWidget(label);
    columns->addWidget(m_limit);
    columns->addStretch(1);
    return row;
}

void DiskSpaceSheet::addRow(const QString &name, const DiskShare &share, bool isAside)
{
    auto *row = new QTreeWidgetItem(m_shares,
                                    {name, QLocale().toString(share.files), sizeText(share.bytes)});
    for (const int column : {PicturesColumn, SizeColumn})
        row->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    if (!isAside)
        return;
    QFont font = m_shares->font();
    font.setItalic(true);
    for (const int column : {SourceColumn, PicturesColumn, SizeColumn})
        row->setFont(column, font);
}

void DiskSpaceSheet::setCollection(const Collection &collection)
{
    m_collection = collection;
    m_shares->clear();
    for (const DiskShare &share : collection.sources)
        addRow(share.source, share, false);
    addRow(tr("Thumbnails"), collection.thumbs, true);
    if (collection.others.files > 0)
        addRow(tr("Other files in the folder"), collection.others, true);
    const qint64 bytes =
        collection.pictures.bytes + collection.thumbs.bytes + collection.others.bytes;
    m_summary->setText(tr("The collection takes %1. Full pictures: %2 (%3).")
                           .arg(sizeText(bytes), QLocale().toString(collection.pictures.files),
                                sizeText(collection.pictures.bytes)));
    tellConsequence();
}

void DiskSpaceSheet::tellConsequence()
{
    const int gigabytes = m_limit->currentData().toInt();
    if (gigabytes == 0) {
        m_consequence->setText(tr("All pictures stay."));
        return;
    }
    const auto going = picturesToLetGo(m_collection, bytesOfGigabytes(gigabytes));
    const qint64 bytes = std::accumulate(
        going.begin(), going.end(), qint64(0),
        [](qint64 sum, const SparePicture &picture) { return sum + picture.bytes; });
    const QString now = going.empty()
        ? tr("All pictures stay for now.")
        : tr("Oldest pictures that go to the Trash now: %1 (%2).")
              .arg(QLocale().toString(static_cast<qulonglong>(going.size())), sizeText(bytes));
    m_consequence->setText(
        now + u' '
        + tr(
            "What you set as desktop stays, and so do thumbnails and captions. A picture that went "
            "comes back when you open it."));
}

} // namespace moravel
