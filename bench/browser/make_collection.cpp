// SPDX-License-Identifier: MIT
// make_collection FOLDER COUNT WIDTHxHEIGHT DIFFERENT: makes a collection of COUNT records and pictures below
// FOLDER, as HOME, of which DIFFERENT are pictures of their own and the others hard links to them.
#include <QDate>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <array>
#include <cstdio>
#include <random>
#include <unistd.h>

namespace {

constexpr std::array Words{"moon",      "over",  "the",   "Ægean", "sea",     "at",       "dawn",
                           "nébuleuse", "field", "comet", "quiet", "harbour", "mountain", "ridge",
                           "in",        "light", "stars", "Łódź",  "aurora",  "galaxy",   "rain"};

/// Soft hills and grain: packs about as a photograph does.
QImage picture(QSize size, int number)
{
    std::mt19937 random(static_cast<unsigned>(number));
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    QLinearGradient sky(0, 0, size.width(), size.height());
    sky.setColorAt(0, QColor::fromHsv(number * 37 % 360, 160, 110));
    sky.setColorAt(1, QColor::fromHsv((number * 37 + 70) % 360, 90, 240));
    painter.fillRect(image.rect(), sky);
    for (int i = 0; i < 400; ++i) {
        const auto at = [&](int most) { return static_cast<int>(random() % unsigned(most)); };
        painter.setPen(QPen(QColor(at(255), at(255), at(255), 60), 1 + at(size.width() / 60 + 1)));
        painter.drawLine(at(size.width()), at(size.height()), at(size.width()), at(size.height()));
    }
    painter.end();
    for (int y = 0; y < size.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < size.width(); ++x)
            line[x] ^= static_cast<QRgb>(random()) & 0x070707U;
    }
    return image;
}

QByteArray caption(std::mt19937 &random, int number)
{
    QByteArray text;
    const auto words = 3 + random() % 8;
    for (unsigned i = 0; i < words; ++i)
        text += QByteArray(Words[random() % Words.size()]) + ' ';
    return text + QByteArray::number(number);
}

} // namespace

int main(int argc, char **argv)
{
    QGuiApplication app(argc, argv);
    const QStringList arguments = app.arguments();
    const int count = arguments.value(2).toInt();
    const QSize size(arguments.value(3).section(u'x', 0, 0).toInt(),
                     arguments.value(3).section(u'x', 1, 1).toInt());
    const int different = arguments.value(4).toInt();
    const QString pictures = arguments.value(1) + QStringLiteral("/Pictures/Moravel/");
    const QString support = arguments.value(1) + QStringLiteral("/share/Moravel/");
    if (count < 1 || different < 1 || size.isEmpty() || !QDir().mkpath(pictures)
        || !QDir().mkpath(support)) {
        std::fputs("usage: make_collection FOLDER COUNT WIDTHxHEIGHT DIFFERENT\n", stderr);
        return 2;
    }
    QFile records(support + QStringLiteral("Moravel2.txt"));
    if (!records.open(QIODevice::WriteOnly))
        return 1;
    std::mt19937 random(1);
    const auto path = [&](int i) {
        return pictures + QStringLiteral("picture-of-the-day-%1.jpg").arg(i, 6, 10, QChar(u'0'));
    };
    for (int i = 0; i < count; ++i) {
        const bool made = i < different ? picture(size, i).save(path(i), "jpg", 85)
                                        : ::link(QFile::encodeName(path(i % different)).constData(),
                                                 QFile::encodeName(path(i)).constData())
                == 0;
        if (!made)
            return 1;
        const QByteArray name = path(i).section(u'/', -1).toUtf8();
        records.write(
            QDate(2000, 1, 1).addDays(i / 15).toString(QStringLiteral("yyyyMMdd")).toUtf8()
            + "\tsource" + QByteArray::number(i % 15) + "\thttp://pictures.example.org/thumbs/"
            + name + "\thttp://pictures.example.org/full/" + name
            + "\thttp://pictures.example.org/pages/" + QByteArray::number(i) + ".html\t"
            + caption(random, i) + "\tA text of some length that tells what can be seen.\n");
    }
    return records.flush() ? 0 : 1;
}
