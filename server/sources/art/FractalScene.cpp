// SPDX-License-Identifier: MIT
#include "server/sources/art/FractalScene.h"

#include "server/sources/art/Random.h"

#include <optional>

namespace moravel::server::art {

namespace {

/// A place known to be worth a visit; candidates are jittered around it.
struct Place
{
    double re; ///< c of a Julia set, or the centre of the view for z₀ = 0.
    double im;
    double jitter; ///< Reach of the jitter: of c, or as a share of the width.
    double width;
    int limit;
};

/// Constants just outside the Mandelbrot set, where Julia sets are all spirals and lace.
constexpr Place kJulia[] = {
    {-0.7463, 0.1102, 0.0008, 2.2, 260},     {-0.7269, 0.1889, 0.0015, 2.4, 240},
    {-0.8, 0.156, 0.0015, 2.6, 220},         {-0.4, 0.6, 0.004, 2.3, 200},
    {0.285, 0.0105, 0.0008, 1.9, 260},       {0.355, 0.355, 0.002, 1.9, 220},
    {-0.70176, -0.3842, 0.002, 2.5, 200},    {-0.835, -0.2321, 0.002, 2.6, 200},
    {-0.1, 0.6557, 0.002, 2.1, 220},         {0.3535, 0.0990, 0.003, 1.8, 240},
    {-0.162, 1.0409, 0.002, 2.2, 200},       {-0.7885, 0.1480, 0.002, 2.4, 220},
    {0.3750, 0.2200, 0.0015, 1.9, 220},      {-0.7102, 0.2860, 0.0015, 2.3, 220},
    {-0.512511, 0.521295, 0.0004, 2.2, 240}, {-0.235125, 0.827215, 0.0015, 2.1, 220},
};

/// Places of long orbits alternate with cheaper ones to fall back on.
constexpr Place kMandelbrot[] = {
    {-0.7453, 0.1127, 0.25, 0.0065, 700},
    {0.2925755, -0.0149977, 0.2, 0.006, 500},
    {0.3245046418, 0.0485510113, 0.2, 0.004, 500},
    {-0.743643887, 0.131825904, 0.15, 0.0018, 800},
    {-0.088, 0.654, 0.2, 0.014, 400},
    {-0.0452407411, 0.9868162204, 0.2, 0.004, 400},
    {-0.761574, -0.0847596, 0.2, 0.0032, 700},
    {-0.235125, 0.827215, 0.2, 0.004, 400},
    {-0.170337, -1.06506, 0.2, 0.006, 400},
    {-0.748, 0.1, 0.2, 0.0034, 700},
    {0.42884, -0.231345, 0.2, 0.008, 400},
    {-1.25066, 0.02012, 0.2, 0.0017, 800},
    {-0.5503, 0.6259, 0.2, 0.009, 500},
};

constexpr int kProbeWidth = 96;
constexpr int kProbeHeight = 54;
constexpr int kCandidates = 6; ///< Looked at around one place.
constexpr int kMostCandidates = 36;
constexpr double kGoodScore = -0.42; ///< Below, the neighbouring places are looked at too.
/// Mean steps a point that the time for the largest pictures allows.
constexpr double kDearestMean = 75;

template <std::size_t N>
const Place &placeOfDay(const Place (&places)[N], std::int64_t day, int detour)
{
    return places[(cardOfDay(day, N, 0x91ace) + static_cast<std::size_t>(detour)) % N];
}

/// Goes from 0 outwards in a random direction to the edge of the set of z^power + c, and a little
/// past it: there the Julia sets have just fallen to dust.
Place beyondTheEdge(int power, Random &random)
{
    const double angle = random.between(0, 2 * kPi);
    const double x = cosOf(angle);
    const double y = sinOf(angle);
    EscapeRule rule;
    rule.power = power;
    rule.julia = false;
    rule.limit = 400;
    Orbits orbits;
    orbits.resize(1);
    double inside = 0;
    double outside = 2;
    for (int i = 0; i < 16; ++i) {
        const double middle = (inside + outside) / 2;
        const std::vector<double> re(orbits.steps.size(), middle * x);
        const std::vector<double> im(orbits.steps.size(), middle * y);
        followOrbits(rule, re.data(), im.data(), 1, orbits);
        (orbits.steps[0] < 0 ? inside : outside) = middle;
    }
    const double radius = outside + random.between(0.004, 0.02);
    return {radius * x, radius * y, 0, 2.2, 200};
}

/// A view around the day's place, or around the one @p detour places further. Eight in sixteen days
/// show quadratic Julia sets, five the Mandelbrot set, three higher powers.
FractalScene candidate(std::int64_t day, int detour, Random &random)
{
    FractalScene scene;
    const std::size_t card = cardOfDay(day, 16, 0xfa111e5);
    const bool mandelbrot = card % 3 == 1;
    scene.rule.power = card == 3 || card == 9 ? 3 : card == 14 ? 4 : 2;
    scene.rule.julia = !mandelbrot;
    const Place place = mandelbrot ? placeOfDay(kMandelbrot, day, detour)
        : scene.rule.power == 2    ? placeOfDay(kJulia, day, detour)
                                   : beyondTheEdge(scene.rule.power, random);
    FractalView &view = scene.view;
    scene.rule.limit = place.limit;
    if (mandelbrot) {
        view.width = place.width * random.between(0.55, 1.5);
        view.re = place.re + view.width * random.between(-place.jitter, place.jitter);
        view.im = place.im + view.width * random.between(-place.jitter, place.jitter);
        scene.rule.deep = view.width < 0.03;
    } else {
        // Four decimals, so that the caption can name the constant exactly.
        const auto rounded = [](double v) { return std::floor(v * 1e4 + 0.5) / 1e4; };
        scene.rule.cRe = rounded(place.re + random.between(-place.jitter, place.jitter));
        scene.rule.cIm = rounded(place.im + random.between(-place.jitter, place.jitter));
        view.width = place.width * random.between(0.4, 1.25);
        const double reach = std::max(0.0, 0.42 * (1.2 - view.width / place.width / 1.1));
        view.re = random.between(-reach, reach);
        view.im = random.between(-reach, reach) * 0.8;
    }
    view.degrees = static_cast<int>(random.below(360));
    view.cosine = cosOf(view.degrees * kPi / 180);
    view.sine = sinOf(view.degrees * kPi / 180);
    return scene;
}

Orbits probe(const FractalScene &scene)
{
    constexpr auto kCount = static_cast<std::size_t>(kProbeWidth * kProbeHeight);
    std::vector<double> re(kCount);
    std::vector<double> im(kCount);
    const FractalView &v = scene.view;
    for (std::size_t i = 0; i < kCount; ++i) {
        const auto column = static_cast<double>(i % kProbeWidth);
        const auto row = static_cast<double>(i / kProbeWidth);
        const double x = (column + 0.5) / kProbeWidth - 0.5;
        const double y = ((kProbeHeight - 1) / 2.0 - row) / kProbeWidth;
        re[i] = v.re + v.width * (x * v.cosine - y * v.sine);
        im[i] = v.im + v.width * (x * v.sine + y * v.cosine);
    }
    Orbits orbits;
    orbits.resize(kCount);
    followOrbits(scene.rule, re.data(), im.data(), kCount, orbits);
    return orbits;
}

/// What a probe says of a view, each as a share of the frame.
struct Findings
{
    double inside = 0;
    double lace = 0; ///< Points close to the set: the detail.
    double calm = 0; ///< Points far from it: room for the eye (and for desktop icons).
    double steps = 0; ///< Mean number of steps a point, in single precision.
};

Findings examine(const FractalScene &scene, const Orbits &orbits)
{
    Findings f;
    const double near = scene.view.width * 0.004;
    const double far = scene.view.width * 0.02;
    for (std::size_t i = 0; i < orbits.steps.size(); ++i) {
        const bool inside = orbits.steps[i] < 0;
        f.inside += inside;
        f.lace += !inside && orbits.distance[i] < near;
        f.calm += !inside && orbits.distance[i] > far;
        f.steps += inside ? scene.rule.limit : static_cast<double>(orbits.steps[i]);
    }
    const auto count = static_cast<double>(orbits.steps.size());
    const double effort =
        scene.rule.deep ? 2 : 1; // double precision fills the registers twice as fast
    return {f.inside / count, f.lace / count, f.calm / count, effort * f.steps / count};
}

/// Higher is better; the ideal is a quarter lace, a third calm and next to nothing inside.
double score(const Findings &f)
{
    const double lace = std::abs(f.lace - 0.26);
    const double calm = std::abs(f.calm - 0.32);
    const double inside = std::max(0.0, f.inside - 0.03);
    const double cost = std::max(0.0, f.steps / kDearestMean - 1);
    return -(2.0 * lace + calm + 3.0 * inside + 4.0 * cost);
}

void measureStripes(FractalScene &scene, const Orbits &orbits)
{
    double sum = 0;
    double squares = 0;
    double count = 1e-9;
    for (std::size_t i = 0; i < orbits.steps.size(); ++i) {
        if (orbits.steps[i] < 0)
            continue;
        const auto v = static_cast<double>(orbits.stripe[i]);
        sum += v;
        squares += v * v;
        count += 1;
    }
    const double mean = sum / count;
    const double deviation = std::sqrt(std::max(1e-6, squares / count - mean * mean));
    scene.stripeMean = static_cast<float>(mean);
    scene.stripeScale = static_cast<float>(0.5 / deviation);
}

} // namespace

ToneCurve::ToneCurve(const std::vector<float> &steps)
{
    std::vector<float> tones;
    for (const float s : steps)
        if (s >= 0)
            tones.push_back(log2Of(s + 1.0F));
    if (tones.empty())
        return;
    std::sort(tones.begin(), tones.end());
    const auto last = static_cast<double>(tones.size() - 1);
    m_low = tones.front();
    const float high = tones[static_cast<std::size_t>(last * 0.998)];
    m_scale = static_cast<float>(kBins) / std::max(0.01F, high - m_low);
    for (std::size_t bin = 0; bin < m_rank.size(); ++bin) {
        const float tone = m_low + static_cast<float>(bin) / m_scale;
        const auto below = std::lower_bound(tones.begin(), tones.end(), tone) - tones.begin();
        const auto linear = static_cast<float>(bin) / static_cast<float>(kBins);
        m_rank[bin] =
            mix(linear, static_cast<float>(static_cast<double>(below) / (last + 1)), 0.6F);
    }
    for (int pass = 0; pass < 6;
         ++pass) { // rounds the corners that the few points of a probe leave
        auto smooth = m_rank;
        for (std::size_t bin = 1; bin + 1 < m_rank.size(); ++bin)
            smooth[bin] = 0.25F * m_rank[bin - 1] + 0.5F * m_rank[bin] + 0.25F * m_rank[bin + 1];
        m_rank = smooth;
    }
}

float ToneCurve::at(float steps) const
{
    const float p =
        std::clamp((log2Of(steps + 1.0F) - m_low) * m_scale, 0.0F, static_cast<float>(kBins));
    const int i = std::min(static_cast<int>(p), kBins - 1);
    const auto n = static_cast<std::size_t>(i);
    return mix(m_rank[n], m_rank[n + 1], p - static_cast<float>(i));
}

FractalScene fractalSceneFor(QDate date)
{
    const std::int64_t day = date.toJulianDay();
    Random random(static_cast<std::uint64_t>(day) * 0x632be59bd9b4e019ULL + 1);
    std::optional<FractalScene> best;
    Orbits bestOrbits;
    double bestScore = 0;
    for (int i = 0; i < kMostCandidates && (i < kCandidates || bestScore < kGoodScore); ++i) {
        FractalScene scene = candidate(day, i / kCandidates, random);
        const Orbits orbits = probe(scene);
        const double points = score(examine(scene, orbits));
        if (!best || points > bestScore) {
            best = scene;
            bestOrbits = orbits;
            bestScore = points;
        }
    }
    best->tones = ToneCurve(bestOrbits.steps);
    measureStripes(*best, bestOrbits);
    best->style = fractalStyleFor(date);
    return *best;
}

} // namespace moravel::server::art
