// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/SunTimes.h"

#include "text/WideText.h"

#include <cmath>
#include <limits>

namespace {

constexpr double Pi = 3.141592654;
constexpr double TwoPi = 6.283185308;
constexpr double RadToDeg = 57.29577950560105;
constexpr double DegToRad = 0.017453292522222223;
constexpr double SolarDiameter = 0.53; // degrees
constexpr double Refraction = 0.5666666666666667; // degrees, at the horizon

// Into [0, two pi).
double rev(double radians)
{
    const double reduced = radians - TwoPi * std::trunc(radians / TwoPi);
    return reduced < 0 ? reduced + TwoPi : reduced;
}

// A double to a 32-bit integer by truncation; out of range and not-a-number give the x86 answer,
// INT_MIN, rather than undefined behaviour.
std::int32_t truncate(double value)
{
    if (!(value > -2147483649.0 && value < 2147483648.0))
        return std::numeric_limits<std::int32_t>::min();
    return static_cast<std::int32_t>(value);
}

// Days since 31 December 1999 0:00, at noon of the given date.
double dayNumber(int day, int month, int year)
{
    return 367 * year - 7 * (year + (month + 9) / 12) / 4 + 275 * month / 9 + day - 730530 + 0.5;
}

struct SolarPosition
{
    double declination = 0; // radians
    double equationOfTime = 0; // hours
};

SolarPosition solarPosition(double d)
{
    const double w = 282.9404 + 4.70935e-5 * d; // argument of perihelion, degrees
    const double m = 356.047 + 0.9856002585 * d; // mean anomaly, degrees
    const double meanLongitude = rev((m + w) * DegToRad);
    const double mr = rev(m * DegToRad);
    const double e = 0.016709 - 1.151e-9 * d; // eccentricity
    const double obliquity = DegToRad * 23.4393 - DegToRad * d * 3.563e-7; // radians

    const double eccentric = m + RadToDeg * e * std::sin(mr) * (1 + e * std::cos(mr)); // degrees
    const double ed = RadToDeg * rev(eccentric * DegToRad);
    const double xv = std::cos(ed * DegToRad) - e;
    const double yv = std::sqrt(1 - e * e) * std::sin(ed * DegToRad);
    const double r = std::sqrt(xv * xv + yv * yv);
    double lon = RadToDeg * std::atan2(yv, xv) + w;
    if (lon > 360)
        lon -= 360;
    const double x = r * std::cos(lon * DegToRad);
    const double y = r * std::sin(lon * DegToRad);
    const double yEquator = y * std::cos(obliquity);

    SolarPosition sun;
    sun.declination = std::atan2(y * std::sin(obliquity), std::sqrt(x * x + yEquator * yEquator));
    const double lambda = rev((1.915 * std::sin(mr) + 0.02 * std::sin(2 * mr)) * DegToRad + meanLongitude);
    const double ra = std::atan2(std::sin(lambda) * std::cos(obliquity), std::cos(lambda));
    double q = meanLongitude - ra;
    if (meanLongitude < Pi)
        q += TwoPi;
    const double minutes = (1 - (q / Pi) * 0.5) * 1440;
    sun.equationOfTime = minutes * 0.016666666666666666;
    return sun;
}

double dayWrap(double hours)
{
    return hours > 24 ? hours - 24 : hours;
}

} // namespace

std::int32_t SunOffsetHours(ZoneOffset cityOffset)
{
    return IsHhmmOffset(cityOffset) ? cityOffset / 100 : cityOffset;
}

SunTimes computeSunTimes(int day, int month, int year, int latitude, int longitude, int utcHours)
{
    const SolarPosition sun = solarPosition(dayNumber(day, month, year));
    double c = (SolarDiameter * 0.5 + Refraction) * DegToRad;
    if (latitude < 0)
        c = -c;
    double t = std::tan(latitude * DegToRad) * std::tan(c + sun.declination);
    if (t > 0.99999)
        t = 1.0; // no lower clamp: below -1 asin gives not-a-number, as it always has
    const double h = Pi * 0.5 + std::asin(t); // half the day, radians
    const double halfDayHours = (12.0 / Pi) * h;

    SunTimes times;
    times.declination = sun.declination;
    times.dayLength = RadToDeg * h * 0.13333333333333333;
    if (times.dayLength < 0.0001)
        times.dayLength = 0;
    times.sunrise = dayWrap((12 - halfDayHours) + utcHours - longitude * 0.06666666666666667 + sun.equationOfTime);
    times.sunset = dayWrap(utcHours + halfDayHours + 12 - longitude * 0.06666666666666667 + sun.equationOfTime);
    times.sunriseText = FormatHoursMinutes(times.sunrise);
    times.sunsetText = FormatHoursMinutes(times.sunset);
    times.dayLengthText = FormatHoursMinutes(times.dayLength);
    return times;
}

std::wstring FormatHoursMinutes(double hours)
{
    const std::int32_t whole = truncate(hours);
    const std::int32_t minutes = truncate((hours - whole) * 60);
    return FormatText(whole < 10 ? L"0%d" : L"%d", whole) + L":" + FormatText(minutes < 10 ? L"0%d" : L"%d", minutes);
}
