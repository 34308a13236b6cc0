#pragma once

#include "nyxrender/nyxColor.h"

#include <string>
#include <utility>

/// A colour with a name: four floats, linear, and UTF-8 text. Black, opaque and unnamed by default.
class ZColor {
public:
    ZColor() = default;
    ZColor(float r, float g, float b, float a = 1.0f, std::string name = {})
        : rgba_{r, g, b, a}, name_(std::move(name)) {}
    explicit ZColor(nyxColor_rgba const& rgba, std::string name = {})
        : rgba_(rgba), name_(std::move(name)) {}

    [[nodiscard]] nyxColor_rgba const& rgba() const { return rgba_; }
    void setRgba(nyxColor_rgba const& rgba) { rgba_ = rgba; }
    [[nodiscard]] std::string const& name() const { return name_; }
    void setName(std::string name) { name_ = std::move(name); }

    /// Without alpha and name.
    operator nyxColor() const { return {rgba_.r, rgba_.g, rgba_.b}; }

    /// Exact: all four floats and the name.
    friend bool operator==(ZColor const&, ZColor const&) = default;

private:
    nyxColor_rgba rgba_{0, 0, 0, 1};
    std::string name_;
};
