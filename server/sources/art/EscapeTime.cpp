// SPDX-License-Identifier: MIT
#include "server/sources/art/EscapeTime.h"

#include "server/sources/art/Maths.h"

#include <type_traits>

// Several points advance together in a vector register. Where the processor has wider registers the
// wider build is taken; both do the same correctly rounded operations (contraction to fused
// multiply-add is off for this folder), so the results do not differ.
#if defined(__x86_64__) && defined(__GNUC__)
#define MORAVEL_HAS_WIDE 1
#endif

namespace moravel::server::art {

namespace {

/// Steps between looks whether all orbits have left.
constexpr int kStride = 4;

/// The state of as many orbits as fit a register of @p Bytes.
template <typename Real, std::size_t Bytes>
struct Lanes
{
    typedef Real V __attribute__((vector_size(Bytes)));
    static constexpr std::size_t kCount = Bytes / sizeof(Real);

    V x, y, dx, dy, sum, last, steps;
};

/// One step of z → z^P + c and of its derivative.
template <int P, typename V>
[[gnu::always_inline]] inline void step(V &x, V &y, V &dx, V &dy, const V &cx, const V &cy,
                                        const V &one)
{
    V px = x; // z^(P−1)
    V py = y;
    for (int i = 2; i < P; ++i) {
        const V t = px * x - py * y;
        py = px * y + py * x;
        px = t;
    }
    const V ax = px * P;
    const V ay = py * P;
    const V nextDx = ax * dx - ay * dy + one;
    dy = ax * dy + ay * dx;
    dx = nextDx;
    const V nextX = px * x - py * y + cx;
    y = px * y + py * x + cy;
    x = nextX;
}

template <std::size_t Count, typename Mask>
[[gnu::always_inline]] inline bool anyOf(const Mask &mask)
{
    typename std::remove_cvref_t<decltype(mask[0])> all = 0;
    for (std::size_t i = 0; i < Count; ++i)
        all |= mask[i];
    return all != 0;
}

template <typename Real, std::size_t Bytes, int P>
[[gnu::always_inline]] inline void run(const EscapeRule &rule, const double *re, const double *im,
                                       Lanes<Real, Bytes> &s)
{
    using V = typename Lanes<Real, Bytes>::V;
    constexpr std::size_t kCount = Lanes<Real, Bytes>::kCount;
    const V zero = {};
    V cx = zero;
    V cy = zero;
    s.x = s.y = s.dy = s.sum = s.last = s.steps = zero;
    for (std::size_t i = 0; i < kCount; ++i) {
        (rule.julia ? s.x : cx)[i] = static_cast<Real>(re[i]);
        (rule.julia ? s.y : cy)[i] = static_cast<Real>(im[i]);
    }
    if (rule.julia) {
        cx = zero + static_cast<Real>(rule.cRe);
        cy = zero + static_cast<Real>(rule.cIm);
    }
    s.dx = zero + (rule.julia ? Real(1) : Real(0));
    const V one = zero + (rule.julia ? Real(0) : Real(1));
    constexpr auto kFar = static_cast<Real>(kEscapeRadius * kEscapeRadius);
#pragma GCC unroll 4
    for (int n = 0; n < rule.limit; ++n) {
        const V xx = s.x * s.x;
        const V yy = s.y * s.y;
        const V norm = xx + yy;
        const auto active = norm < kFar;
        if (n % kStride == 0 && !anyOf<kCount>(active))
            break;
        V x = s.x;
        V y = s.y;
        V dx = s.dx;
        V dy = s.dy;
        step<P>(x, y, dx, dy, cx, cy, one);
        const V nextNorm = x * x + y * y + Real(1e-20);
        const V inverse = Real(1) / nextNorm;
        const V wave = Real(4) * (x * y * inverse) * ((x * x - y * y) * inverse); // sin 4θ
        s.x = active ? x : s.x;
        s.y = active ? y : s.y;
        s.dx = active ? dx : s.dx;
        s.dy = active ? dy : s.dy;
        s.sum = active ? s.sum + wave : s.sum;
        s.last = active ? wave : s.last;
        s.steps = active ? s.steps + Real(1) : s.steps;
    }
}

/// Turns the last state of an orbit into what the shading wants.
template <typename State>
void conclude(const EscapeRule &rule, const State &s, std::size_t lane, std::size_t at, Orbits &o)
{
    const auto x = static_cast<double>(s.x[lane]);
    const auto y = static_cast<double>(s.y[lane]);
    const auto dx = static_cast<double>(s.dx[lane]);
    const auto dy = static_cast<double>(s.dy[lane]);
    const double norm = x * x + y * y;
    const double slope = dx * dx + dy * dy;
    o.normalX[at] = o.normalY[at] = o.distance[at] = 0;
    o.steps[at] = -1;
    o.stripe[at] = 0.5F;
    const bool left = norm >= kEscapeRadius * kEscapeRadius && norm < 1e37;
    if (!left || !(slope > 0 && slope < 1e200))
        return;
    const float logNorm = log2Of(static_cast<float>(norm));
    const float logFar = 2.0F * log2Of(static_cast<float>(kEscapeRadius));
    const float past = log2Of(logNorm / logFar) / log2Of(static_cast<float>(rule.power)); // 0 … 1
    const auto n = static_cast<float>(s.steps[lane]);
    o.steps[at] = std::max(0.0F, n + 1.0F - past);
    const auto sum = static_cast<float>(s.sum[lane]);
    const float now = sum / std::max(1.0F, n);
    const float before = (sum - static_cast<float>(s.last[lane])) / std::max(1.0F, n - 1.0F);
    o.stripe[at] = 0.5F + 0.5F * mix(now, before, clamp01(past));
    const double ux = x * dx + y * dy; // z · conj(z′)
    const double uy = y * dx - x * dy;
    const double length = std::sqrt(norm * slope);
    o.normalX[at] = static_cast<float>(ux / length);
    o.normalY[at] = static_cast<float>(uy / length);
    o.distance[at] =
        static_cast<float>(std::sqrt(norm / slope)) * logNorm * 0.34657359F; // |z| ln|z| / |z′|
}

template <typename Real, std::size_t Bytes, int P>
[[gnu::always_inline]] inline void follow(const EscapeRule &rule, const double *re,
                                          const double *im, std::size_t count, Orbits &orbits)
{
    Lanes<Real, Bytes> state;
    for (std::size_t at = 0; at < count; at += state.kCount) {
        run<Real, Bytes, P>(rule, re + at, im + at, state);
        for (std::size_t lane = 0; lane < state.kCount; ++lane)
            conclude(rule, state, lane, at + lane, orbits);
    }
}

template <std::size_t Bytes>
[[gnu::always_inline]] inline void followAny(const EscapeRule &rule, const double *re,
                                             const double *im, std::size_t count, Orbits &orbits)
{
    if (rule.deep)
        follow<double, Bytes, 2>(rule, re, im, count, orbits);
    else if (rule.power == 2)
        follow<float, Bytes, 2>(rule, re, im, count, orbits);
    else if (rule.power == 3)
        follow<float, Bytes, 3>(rule, re, im, count, orbits);
    else
        follow<float, Bytes, 4>(rule, re, im, count, orbits);
}

#ifdef MORAVEL_HAS_WIDE
[[gnu::target("avx2")]] void followWide(const EscapeRule &rule, const double *re, const double *im,
                                        std::size_t count, Orbits &orbits)
{
    followAny<32>(rule, re, im, count, orbits);
}
#endif

} // namespace

/// The most points that one register holds.
static constexpr std::size_t kPadding = 8;

void Orbits::resize(std::size_t count)
{
    for (auto *values : {&steps, &stripe, &normalX, &normalY, &distance})
        values->resize((count + kPadding - 1) / kPadding * kPadding);
}

void followOrbits(const EscapeRule &rule, const double *re, const double *im, std::size_t count,
                  Orbits &orbits)
{
#ifdef MORAVEL_HAS_WIDE
    static const bool wide = __builtin_cpu_supports("avx2");
    if (wide)
        return followWide(rule, re, im, count, orbits);
#endif
    followAny<16>(rule, re, im, count, orbits);
}

} // namespace moravel::server::art
