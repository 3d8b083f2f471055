#include "sample/geography/NationalGrid.h"

#include <cmath>
#include <numbers>

namespace sample {

namespace {

struct Ellipsoid {
    double a, b; ///< semi-axes, metres

    double eccentricitySquared() const { return 1 - (b * b) / (a * a); }
};

constexpr Ellipsoid airy1830{6377563.396, 6356256.909};
constexpr Ellipsoid wgs84Ellipsoid{6378137.000, 6356752.3142};

constexpr double radians = std::numbers::pi / 180;

struct Cartesian {
    double x, y, z; ///< metres from the centre of the earth
};

Cartesian toCartesian(LatLon place, const Ellipsoid& ellipsoid) {
    const double phi = place.latitude * radians;
    const double lambda = place.longitude * radians;
    const double e2 = ellipsoid.eccentricitySquared();
    const double nu = ellipsoid.a / std::sqrt(1 - e2 * std::sin(phi) * std::sin(phi));
    return {nu * std::cos(phi) * std::cos(lambda), nu * std::cos(phi) * std::sin(lambda),
            nu * (1 - e2) * std::sin(phi)};
}

LatLon fromCartesian(const Cartesian& c, const Ellipsoid& ellipsoid) {
    const double e2 = ellipsoid.eccentricitySquared();
    const double p = std::hypot(c.x, c.y);
    double phi = std::atan2(c.z, p * (1 - e2));
    for (int i = 0; i < 8; ++i) {
        const double nu = ellipsoid.a / std::sqrt(1 - e2 * std::sin(phi) * std::sin(phi));
        phi = std::atan2(c.z + e2 * nu * std::sin(phi), p);
    }
    return {phi / radians, std::atan2(c.y, c.x) / radians};
}

/// Length of the meridian from the true origin to latitude `phi`, metres (the usual series in n).
double meridianArc(double phi, double phi0, const Ellipsoid& e, double scale) {
    const double n = (e.a - e.b) / (e.a + e.b);
    const double n2 = n * n;
    const double n3 = n2 * n;
    const double d = phi - phi0;
    const double s = phi + phi0;
    return e.b * scale *
           ((1 + n + 1.25 * n2 + 1.25 * n3) * d - (3 * n + 3 * n2 + 2.625 * n3) * std::sin(d) * std::cos(s) +
            (1.875 * n2 + 1.875 * n3) * std::sin(2 * d) * std::cos(2 * s) -
            (35.0 / 24) * n3 * std::sin(3 * d) * std::cos(3 * s));
}

} // namespace

// The formulas of the Ordnance Survey's "A guide to coordinate systems in Great Britain", with its names I to VI.
GridReference projectAiry(LatLon osgb36) {
    constexpr double scale = 0.9996012717; // on the central meridian
    constexpr double phi0 = 49 * radians;  // true origin 49 N 2 W
    constexpr double lambda0 = -2 * radians;
    constexpr double falseEasting = 400000;
    constexpr double falseNorthing = -100000;

    const double phi = osgb36.latitude * radians;
    const double l = osgb36.longitude * radians - lambda0;
    const double e2 = airy1830.eccentricitySquared();
    const double sinPhi = std::sin(phi);
    const double cosPhi = std::cos(phi);
    const double t2 = (sinPhi / cosPhi) * (sinPhi / cosPhi);
    const double nu = airy1830.a * scale / std::sqrt(1 - e2 * sinPhi * sinPhi);
    const double rho = airy1830.a * scale * (1 - e2) * std::pow(1 - e2 * sinPhi * sinPhi, -1.5);
    const double eta2 = nu / rho - 1;
    const double cos3 = cosPhi * cosPhi * cosPhi;
    const double cos5 = cos3 * cosPhi * cosPhi;

    const double i = meridianArc(phi, phi0, airy1830, scale) + falseNorthing;
    const double ii = nu / 2 * sinPhi * cosPhi;
    const double iii = nu / 24 * sinPhi * cos3 * (5 - t2 + 9 * eta2);
    const double iiia = nu / 720 * sinPhi * cos5 * (61 - 58 * t2 + t2 * t2);
    const double iv = nu * cosPhi;
    const double v = nu / 6 * cos3 * (nu / rho - t2);
    const double vi = nu / 120 * cos5 * (5 - 18 * t2 + t2 * t2 + 14 * eta2 - 58 * t2 * eta2);

    const double l2 = l * l;
    return {falseEasting + l * (iv + l2 * (v + l2 * vi)), i + l2 * (ii + l2 * (iii + l2 * iiia))};
}

LatLon wgs84ToOsgb36(LatLon wgs84) {
    // Helmert shift: metres, parts per million, seconds of arc.
    constexpr double tx = -446.448, ty = 125.157, tz = -542.060;
    constexpr double s = 1 + 20.4894e-6;
    constexpr double rx = -0.1502 / 3600 * radians, ry = -0.2470 / 3600 * radians, rz = -0.8421 / 3600 * radians;

    const Cartesian c = toCartesian(wgs84, wgs84Ellipsoid);
    const Cartesian shifted{tx + s * c.x - rz * c.y + ry * c.z, ty + rz * c.x + s * c.y - rx * c.z,
                            tz - ry * c.x + rx * c.y + s * c.z};
    return fromCartesian(shifted, airy1830);
}

MapPoint toMap(LatLon wgs84) {
    constexpr double metresPerUnit = 10;
    const GridReference grid = projectAiry(wgs84ToOsgb36(wgs84));
    return {grid.easting / metresPerUnit, grid.northing / metresPerUnit};
}

} // namespace sample
