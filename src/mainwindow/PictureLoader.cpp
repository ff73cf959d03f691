// SPDX-License-Identifier: MIT
#include "mainwindow/PictureLoader.h"

#include <cstdlib>

namespace moravel {

PictureLoader::PictureLoader(Images &images, std::function<void()> changed)
    : m_images(images), m_changed(std::move(changed))
{ }

void PictureLoader::setFile(const QString &path)
{
    m_decoding.reset();
    m_file = path;
    m_image = {};
    m_size = {};
    m_failed = false;
    m_changed();
    start();
}

void PictureLoader::want(QSize box)
{
    m_box = box;
    start();
}

bool PictureLoader::isSharp() const
{
    if (m_image.isNull())
        return false;
    const QSize fitting = m_size.scaled(m_box, Qt::KeepAspectRatio).boundedTo(m_size);
    const QSize apart = m_image.size() - fitting;
    return std::abs(apart.width()) <= 1 && std::abs(apart.height()) <= 1;
}

void PictureLoader::start()
{
    const bool isDecoded = !m_image.isNull() && (m_box == m_decodedBox || isSharp());
    if (m_file.isEmpty() || m_box.isEmpty() || m_decoding || m_failed || isDecoded)
        return;
    m_decodedBox = m_box;
    m_decoding =
        m_images.decode(m_file, m_box, [this](const DecodedPicture &picture) { finish(picture); });
}

void PictureLoader::finish(const DecodedPicture &picture)
{
    m_decoding.reset();
    m_failed = picture.image.isNull();
    m_image = picture.image;
    m_size = picture.size;
    m_changed();
    start(); // the size may have changed meanwhile
}

} // namespace moravel
