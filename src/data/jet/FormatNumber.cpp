#include "data/jet/Format.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <vector>

namespace jet {

namespace {

/// One section of a picture, cut into its signs.
struct Picture {
    struct Sign {
        char kind; ///< '0', '#', or 'l' for literal text
        std::string literal;
    };
    std::vector<Sign> whole;    ///< before the point
    std::vector<Sign> fraction; ///< behind it
    bool hasPoint = false;
    bool groups = false; ///< thousands are set off by commas
    int thousandths = 0; ///< commas behind the last digit: divide by a thousand each
    int percents = 0;
    bool scientific = false;
    bool exponentSign = false; ///< E+ shows a plus
    char exponentLetter = 'E';
    int exponentDigits = 0;
};

std::vector<std::string> sections(std::string_view picture) {
    std::vector<std::string> parts(1);
    bool quoted = false;
    for (std::size_t i = 0; i < picture.size(); ++i) {
        const char c = picture[i];
        if (c == '"')
            quoted = !quoted;
        if (c == '\\' && !quoted && i + 1 < picture.size()) {
            parts.back() += c;
            parts.back() += picture[++i];
        } else if (c == ';' && !quoted) {
            parts.emplace_back();
        } else {
            parts.back() += c;
        }
    }
    return parts;
}

class PictureReader {
public:
    explicit PictureReader(std::string_view text) : text_(text) {}

    Picture read() {
        while (at_ < text_.size())
            sign();
        picture_.thousandths = pendingCommas_;
        return std::move(picture_);
    }

private:
    std::vector<Picture::Sign>& signs() { return picture_.hasPoint ? picture_.fraction : picture_.whole; }

    void literal(std::string_view text) {
        if (!signs().empty() && signs().back().kind == 'l')
            signs().back().literal += text;
        else
            signs().push_back({'l', std::string(text)});
    }

    void sign() {
        const char c = text_[at_++];
        switch (c) {
        case '0':
        case '#':
            picture_.groups = picture_.groups || pendingCommas_ > 0;
            pendingCommas_ = 0;
            digits_ = true;
            signs().push_back({c, {}});
            break;
        case '.':
            picture_.hasPoint ? literal(".") : void(picture_.hasPoint = true);
            break;
        case ',':
            pendingCommas_ += digits_ && !picture_.hasPoint ? 1 : 0;
            break;
        case '%':
            ++picture_.percents;
            literal("%");
            break;
        case '"':
            while (at_ < text_.size() && text_[at_] != '"')
                literal(text_.substr(at_++, 1));
            ++at_;
            break;
        case '\\':
            if (at_ < text_.size())
                literal(text_.substr(at_++, 1));
            break;
        case 'E':
        case 'e':
            if (at_ < text_.size() && (text_[at_] == '+' || text_[at_] == '-') && digits_ && !picture_.scientific) {
                picture_.scientific = true;
                picture_.exponentLetter = c;
                picture_.exponentSign = text_[at_++] == '+';
                while (at_ < text_.size() && (text_[at_] == '0' || text_[at_] == '#')) {
                    picture_.exponentDigits += text_[at_] == '0';
                    ++at_;
                }
                break;
            }
            [[fallthrough]];
        default:
            literal(std::string_view(&c, 1));
        }
    }

    std::string_view text_;
    std::size_t at_ = 0;
    Picture picture_;
    int pendingCommas_ = 0;
    bool digits_ = false;
};

/// The decimal digits of a number not below zero, before and behind the point, rounded half up to `places`.
struct Digits {
    std::string whole, fraction;
};

Digits rounded(double number, std::size_t places) {
    char buffer[400];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, number, std::chars_format::fixed).ptr;
    const std::string text(buffer, end);
    const std::size_t point = text.find('.');
    Digits digits{text.substr(0, point), point == std::string::npos ? std::string() : text.substr(point + 1)};
    const bool up = digits.fraction.size() > places && digits.fraction[places] >= '5';
    digits.fraction.resize(places, '0');
    if (up) {
        std::string all = digits.whole + digits.fraction;
        std::size_t i = all.size();
        while (i > 0 && all[i - 1] == '9')
            all[--i] = '0';
        if (i > 0)
            ++all[i - 1];
        else
            all.insert(all.begin(), '1');
        digits.fraction = all.substr(all.size() - places);
        digits.whole = all.substr(0, all.size() - places);
    }
    digits.whole.erase(0, std::min(digits.whole.find_first_not_of('0'), digits.whole.size()));
    return digits;
}

/// The whole part from the right; digits that have no sign of their own stand at the first one.
std::string wholePart(const Picture& picture, const std::string& digits) {
    std::string reversed;
    std::size_t used = 0;
    const auto put = [&](char digit) {
        if (picture.groups && used > 0 && used % 3 == 0)
            reversed += ',';
        reversed += digit;
        ++used;
    };
    const auto first =
        std::find_if(picture.whole.begin(), picture.whole.end(), [](const auto& sign) { return sign.kind != 'l'; });
    for (auto sign = picture.whole.end(); sign != picture.whole.begin();) {
        --sign;
        if (sign->kind == 'l') {
            reversed.append(sign->literal.rbegin(), sign->literal.rend());
            continue;
        }
        if (used < digits.size())
            put(digits[digits.size() - 1 - used]);
        else if (sign->kind == '0')
            put('0');
        if (sign == first) {
            while (used < digits.size())
                put(digits[digits.size() - 1 - used]);
        }
    }
    return {reversed.rbegin(), reversed.rend()};
}

std::string fractionPart(const Picture& picture, const std::string& digits) {
    // A # at the end shows no zero.
    std::size_t shown = digits.size();
    std::size_t at = digits.size();
    for (auto sign = picture.fraction.rbegin(); sign != picture.fraction.rend(); ++sign) {
        if (sign->kind == 'l')
            continue;
        --at;
        if (sign->kind != '#' || digits[at] != '0')
            break;
        shown = at;
    }
    std::string text;
    std::size_t next = 0;
    for (const Picture::Sign& sign : picture.fraction) {
        if (sign.kind == 'l')
            text += sign.literal;
        else if (next++ < shown)
            text += digits[next - 1];
    }
    return text;
}

std::string byPicture(double number, const Picture& picture) {
    for (int i = 0; i < picture.percents; ++i)
        number *= 100.0;
    for (int i = 0; i < picture.thousandths; ++i)
        number /= 1000.0;
    int exponent = 0;
    const auto places = static_cast<std::size_t>(std::count_if(picture.fraction.begin(), picture.fraction.end(),
                                                               [](const auto& sign) { return sign.kind != 'l'; }));
    Digits digits;
    if (picture.scientific && number > 0) {
        const auto wholeDigits =
            std::max<std::ptrdiff_t>(1, std::count_if(picture.whole.begin(), picture.whole.end(),
                                                      [](const auto& sign) { return sign.kind != 'l'; }));
        exponent = static_cast<int>(std::floor(std::log10(number))) - static_cast<int>(wholeDigits) + 1;
        digits = rounded(number / std::pow(10.0, exponent), places);
        if (digits.whole.size() > static_cast<std::size_t>(wholeDigits)) // 9.99 rounds to 10.0
            digits = rounded(number / std::pow(10.0, ++exponent), places);
    } else {
        digits = rounded(number, places);
    }
    std::string text = wholePart(picture, digits.whole);
    std::string power;
    if (picture.scientific) {
        power = std::to_string(std::abs(exponent));
        if (power.size() < static_cast<std::size_t>(picture.exponentDigits))
            power.insert(0, static_cast<std::size_t>(picture.exponentDigits) - power.size(), '0');
        power.insert(0, exponent < 0 ? "-" : (picture.exponentSign ? "+" : ""));
        power.insert(power.begin(), picture.exponentLetter);
    }
    if (picture.hasPoint)
        text += "." + fractionPart(picture, digits.fraction);
    return text + power;
}

} // namespace

std::string formatNumber(double number, std::string_view picture) {
    if (!std::isfinite(number))
        return shortestText(number);
    const std::vector<std::string> parts = sections(picture);
    std::size_t section = 0;
    if (number < 0 && parts.size() > 1 && !parts[1].empty())
        section = 1;
    else if (number == 0 && parts.size() > 2 && !parts[2].empty())
        section = 2;
    const std::string text = byPicture(std::fabs(number), PictureReader(parts[section]).read());
    const bool shownAsZero = text.find_first_of("123456789") == std::string::npos;
    return number < 0 && section == 0 && !shownAsZero ? "-" + text : text;
}

std::string formatNull(std::string_view picture) {
    const std::vector<std::string> parts = sections(picture);
    return parts.size() > 3 ? byPicture(0, PictureReader(parts[3]).read()) : std::string();
}

} // namespace jet
