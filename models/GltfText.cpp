// SPDX-License-Identifier: MIT
#include "GltfText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>

float GltfText::rounded(double value)
{
    constexpr double step = 1.0e-5;
    return static_cast<float>(std::round(value / step) * step) + 0.0f;
}

std::string GltfText::text(double value)
{
    char digits[32];
    const auto end = std::to_chars(std::begin(digits), std::end(digits), rounded(value)).ptr;
    return std::string(digits, end);
}

std::string GltfText::joined(std::initializer_list<std::string_view> pieces)
{
    std::string all;
    for (const std::string_view piece : pieces)
        all += piece;
    return all;
}

std::string GltfText::quoted(const std::string& name)
{
    return joined({"\"", name, "\""});
}

std::string GltfText::list(const std::string& key, const std::vector<std::string>& entries)
{
    std::string all;
    for (const std::string& entry : entries)
        all += joined({all.empty() ? "" : ",\n", entry});
    return joined({quoted(key), ":[\n", all, "\n]"});
}

std::string GltfText::numbers(const std::vector<int>& values)
{
    std::string all;
    for (const int value : values)
        all += joined({all.empty() ? "" : ",", std::to_string(value)});
    return joined({"[", all, "]"});
}

std::string GltfText::base64(const std::vector<std::uint8_t>& bytes)
{
    static constexpr char digits[] =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string all;
    for (std::size_t at = 0; at < bytes.size(); at += 3) {
        const std::size_t have = std::min<std::size_t>(3, bytes.size() - at);
        std::uint32_t group = 0;
        for (std::size_t i = 0; i < 3; ++i)
            group = group << 8 | (i < have ? bytes[at + i] : 0U);
        for (std::size_t i = 0; i < 4; ++i)
            all += i <= have ? digits[group >> (18 - 6 * i) & 63] : '=';
    }
    return all;
}
