// SPDX-License-Identifier: MIT
#include "server/sources/art/FractalRender.h"

#include "server/sources/art/Bands.h"

namespace moravel::server::art {

namespace {

constexpr int kBandRows = 48;
constexpr int kLargeWidth = 2560;
/// Relative difference of brightness between neighbours from which a pixel is sampled more finely.
constexpr float kRough = 0.10F;

/// Sub-pixel offsets of the finer sampling: a rotated grid, no two in one row or column. Large
/// pictures, whose pixels are small to the eye, make do with the first two.
constexpr double kOffsets[][2] = {
    {-0.375, -0.125}, {0.375, 0.125}, {0.125, -0.375}, {-0.125, 0.375}};

/// Maps pixels to the plane: the 16 : 9 frame covers the picture, centred.
class Frame
{
public:
    Frame(const FractalView &view, QSize size)
        : m_view(view)
        , m_unit(view.width / std::max<double>(size.width(), size.height() * 16.0 / 9.0))
        , m_middleX(size.width() / 2.0)
        , m_middleY(size.height() / 2.0)
    { }

    /// @p x and @p y count from the picture's upper left corner.
    void toPlane(double x, double y, double &re, double &im) const
    {
        const double u = (x - m_middleX) * m_unit;
        const double v = (m_middleY - y) * m_unit;
        re = m_view.re + u * m_view.cosine - v * m_view.sine;
        im = m_view.im + u * m_view.sine + v * m_view.cosine;
    }

    /// 0 in the middle, 1 in the corners of the frame.
    float eccentricity(double x, double y) const
    {
        const double u = (x - m_middleX) * m_unit / m_view.width;
        const double v = (y - m_middleY) * m_unit / m_view.width;
        return static_cast<float>((u * u + v * v) / (0.25 * (1.0 + 81.0 / 256.0)));
    }

private:
    FractalView m_view;
    double m_unit;
    double m_middleX;
    double m_middleY;
};

Rgb shade(const FractalScene &scene, const Orbits &o, std::size_t i)
{
    const FractalStyle &style = scene.style;
    if (o.steps[i] < 0)
        return style.inside;
    const float away = o.distance[i] / static_cast<float>(scene.view.width);
    const float silk =
        std::clamp((o.stripe[i] - scene.stripeMean) * scene.stripeScale, -1.0F, 1.0F);
    const float tone = scene.tones.at(o.steps[i]) + style.stripes * silk;
    Rgb colour = style.gradient.at(tone);
    // The light stands in the picture, the normals in the plane: turn them with the view.
    const auto c = static_cast<float>(scene.view.cosine);
    const auto s = static_cast<float>(scene.view.sine);
    const float nx = o.normalX[i] * c + o.normalY[i] * s;
    const float ny = o.normalY[i] * c - o.normalX[i] * s;
    const float facing = nx * style.lightX + ny * style.lightY;
    const float steepness = style.relief * (0.35F + 0.65F * expOf(-18.0F * away));
    colour = colour * (1.0F + steepness * 0.75F * facing);
    const float gloss = clamp01(facing);
    const float near = expOf(-260.0F * away);
    const float light =
        style.glowStrength * (0.55F * near + 0.16F * steepness * gloss * gloss * gloss * gloss);
    return mix(colour, style.glow, clamp01(light));
}

float vignette(float eccentricity)
{
    return 1.0F - 0.34F * eccentricity * eccentricity;
}

/// Draws one band of rows. Scratch space is kept from row to row.
class BandPainter
{
public:
    BandPainter(const FractalScene &scene, const Frame &frame, int width)
        : m_scene(scene), m_frame(frame), m_width(width), m_extra(width > kLargeWidth ? 2 : 4)
    { }

    void paint(const Pixels &pixels, int first, int end)
    {
        const auto width = static_cast<std::size_t>(m_width);
        const int rows = end - first + 2; // one more on either side, to compare with
        m_colours.resize(static_cast<std::size_t>(rows) * width);
        for (int row = 0; row < rows; ++row) {
            clear();
            for (int x = 0; x < m_width; ++x)
                add(x + 0.5, first - 1 + row + 0.5);
            follow();
            for (std::size_t x = 0; x < width; ++x)
                m_colours[static_cast<std::size_t>(row) * width + x] = shade(m_scene, m_orbits, x);
        }
        for (int row = 1; row + 1 < rows; ++row)
            finish(pixels, first - 1 + row,
                   m_colours.data() + static_cast<std::size_t>(row) * width);
    }

private:
    void clear()
    {
        m_re.clear();
        m_im.clear();
    }

    void add(double x, double y)
    {
        double re = 0;
        double im = 0;
        m_frame.toPlane(x, y, re, im);
        m_re.push_back(re);
        m_im.push_back(im);
    }

    void follow()
    {
        const std::size_t count = m_re.size();
        m_orbits.resize(count);
        m_re.resize(m_orbits.steps.size(), count ? m_re.back() : 0);
        m_im.resize(m_orbits.steps.size(), count ? m_im.back() : 0);
        followOrbits(m_scene.rule, m_re.data(), m_im.data(), count, m_orbits);
    }

    bool isRough(const Rgb *at, int x) const
    {
        const float own = luminance(*at);
        const auto differs = [own](const Rgb &other) {
            const float l = luminance(other);
            return std::abs(l - own) > kRough * (l + own + 0.04F);
        };
        return (x > 0 && differs(at[-1])) || (x + 1 < m_width && differs(at[1]))
            || differs(at[-m_width]) || differs(at[m_width]);
    }

    /// Samples the rough pixels of a row again and writes the row.
    void finish(const Pixels &pixels, int y, const Rgb *colours)
    {
        clear();
        m_rough.clear();
        for (int x = 0; x < m_width; ++x) {
            if (!isRough(colours + x, x))
                continue;
            m_rough.push_back(x);
            for (std::size_t k = 0; k < m_extra; ++k)
                add(x + 0.5 + kOffsets[k][0], y + 0.5 + kOffsets[k][1]);
        }
        follow();
        std::uint32_t *out = pixels.row(y);
        std::size_t next = 0;
        for (int x = 0; x < m_width; ++x) {
            Rgb colour = colours[x];
            if (next < m_rough.size() && m_rough[next] == x) {
                for (std::size_t k = 0; k < m_extra; ++k)
                    colour = colour + shade(m_scene, m_orbits, next * m_extra + k);
                colour = colour * (1.0F / static_cast<float>(1 + m_extra));
                ++next;
            }
            out[x] = toPixel(colour * vignette(m_frame.eccentricity(x + 0.5, y + 0.5)), x, y);
        }
    }

    const FractalScene &m_scene;
    const Frame &m_frame;
    int m_width;
    std::size_t m_extra; ///< Samples added to a rough pixel.
    std::vector<double> m_re;
    std::vector<double> m_im;
    Orbits m_orbits;
    std::vector<Rgb> m_colours;
    std::vector<int> m_rough;
};

} // namespace

QImage renderFractal(const FractalScene &scene, QSize size, int threads)
{
    QImage image(size, QImage::Format_RGB32);
    if (image.isNull())
        return image;
    const Pixels pixels(image);
    const Frame frame(scene.view, size);
    forBands(0, pixels.height, kBandRows, threads, [&](int first, int end) {
        BandPainter(scene, frame, pixels.width).paint(pixels, first, end);
    });
    return image;
}

} // namespace moravel::server::art
