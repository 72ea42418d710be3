// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

/// The pieces that the text of a model is made of.
namespace GltfText {

/// Mathematical functions differ in their last bits from one library to the next; the coarse step
/// keeps that out of the files.
float rounded(double value);

std::string joined(std::initializer_list<std::string_view> pieces);
std::string text(double value);
std::string quoted(const std::string& name);
std::string numbers(const std::vector<int>& values);

/// One entry a line, so that a change of the models can be read in a diff.
std::string list(const std::string& key, const std::vector<std::string>& entries);

std::string base64(const std::vector<std::uint8_t>& bytes);

template <std::size_t size>
std::string text(const std::array<double, size>& values)
{
    std::string all;
    for (const double value : values)
        all += joined({all.empty() ? "" : ",", text(value)});
    return joined({"[", all, "]"});
}

} // namespace GltfText
