#pragma once

#include "nyxrender/Ids.h"
#include "nyxrender/Span.h"
#include "zcore/Export.h"
#include "zcore/ZColor.h"

#include <QSharedDataPointer>

#include <string>

class ZColorExtData;

/// A colour that is either plain (one element) or a multi-colour (an ordered list of sub-colours,
/// of which one is active), with its own id, name and revision. A value: copies share their data
/// until one of them is changed. Getters take any index; out of range they give the invalid id, the
/// empty name, black with alpha 1. One object belongs to one thread; copies may live on others.
class ZCORE_EXPORT ZColorExt {
public:
    /// One element: its colour and name, and the id of the colour record that it stands for.
    struct ZColorWithId : ZColor {
        nyx::ColorId id;

        ZColorWithId() = default;
        ZColorWithId(ZColor color, nyx::ColorId colorId) : ZColor(std::move(color)), id(colorId) {}
        friend bool operator==(ZColorWithId const&, ZColorWithId const&) = default;
    };

    /// What setColor does with the name.
    enum class NameOp { Keep, Replace };

    /// Plain, without an element, id or name; it reads as opaque black.
    ZColorExt();
    /// Plain, one element without id or name.
    ZColorExt(float r, float g, float b, float a = 1.0f);
    explicit ZColorExt(nyxColor const& color);
    /// Plain, one element; both take the colour's name.
    explicit ZColorExt(ZColor const& color);
    ZColorExt(ZColorExt const&);
    ZColorExt(ZColorExt&&) noexcept;
    ZColorExt& operator=(ZColorExt const&);
    ZColorExt& operator=(ZColorExt&&) noexcept;
    ~ZColorExt();

    [[nodiscard]] nyx::ColorId getId() const;
    void setId(nyx::ColorId id);
    [[nodiscard]] std::string const& getColorName() const;
    void setColorName(std::string const& name);
    [[nodiscard]] bool isMultiColor() const;
    void setMultiColor(bool multi);
    /// The state of the colour record that this value was read from.
    [[nodiscard]] unsigned revision() const;
    void setRevision(unsigned revision);

    [[nodiscard]] int nColors() const;
    /// Replaces all elements; the active index stays as it is.
    void setColors(nyx::Span<ZColorWithId> elements);
    [[nodiscard]] int activeIndex() const;
    /// Not checked against the elements.
    void setActiveIndex(int index);

    [[nodiscard]] ZColor const& getColor(int index) const;
    [[nodiscard]] std::string const& getName(int index) const;
    [[nodiscard]] nyx::ColorId getSubColorId(int index) const;
    /// Ignored for an index out of range.
    void setSubColorId(int index, nyx::ColorId id);
    [[nodiscard]] nyxColor_rgba subRgba(int index) const;
    /// The first element of that id, or -1.
    [[nodiscard]] int getIndexOfSubColor(nyx::ColorId id) const;
    /// Whether this is a multi-colour that has an element of that id.
    [[nodiscard]] bool hasSubColor(nyx::ColorId id) const;

    /// The active element, its colour, its id.
    [[nodiscard]] ZColor const& getActive() const;
    [[nodiscard]] nyxColor_rgba rgba() const;
    [[nodiscard]] nyx::ColorId getActiveSubColorId() const;
    /// Changes the active element's value (makes one when there are none); ignored when the active
    /// index is out of range. Replace also takes the name, for the element and, on a plain colour,
    /// for the colour.
    void setColor(ZColor const& color, NameOp op);
    explicit operator ZColor() const { return getActive(); }

    /// Stops sharing data with other values.
    void detach();
    /// A copy that shares nothing with this value.
    [[nodiscard]] ZColorExt detachedClone() const;
    /// Takes over everything that `other` holds, revision included.
    void copyDataFrom(ZColorExt const& other);

    /// Everything but the revision.
    ZCORE_EXPORT friend bool operator==(ZColorExt const& a, ZColorExt const& b);

private:
    QSharedDataPointer<ZColorExtData> d_;
};
