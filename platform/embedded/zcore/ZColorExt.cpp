#include "zcore/ZColorExt.h"

#include <QSharedData>

#include <algorithm>
#include <utility>
#include <vector>

using Element = ZColorExt::ZColorWithId;

class ZColorExtData : public QSharedData {
public:
    nyx::ColorId id;
    std::string name;
    bool multi = false;
    unsigned revision = 0;
    int activeIndex = 0;
    std::vector<Element> elements;
};

namespace {

ZColorExtData const& defaultData() {
    static ZColorExtData const data;
    return data;
}

/// What a getter answers from when there is no such element.
Element const& noElement() {
    static Element const element;
    return element;
}

/// The data of a value; one that was never changed, or was moved from, has none of its own.
ZColorExtData const& read(QSharedDataPointer<ZColorExtData> const& d) {
    return d.constData() ? *d.constData() : defaultData();
}

/// The data of a value that is about to change, shared with no other.
ZColorExtData& write(QSharedDataPointer<ZColorExtData>& d) {
    if (!d.constData()) {
        d = new ZColorExtData;
    }
    return *d.data();
}

bool holds(ZColorExtData const& data, int index) {
    return index >= 0 && static_cast<std::size_t>(index) < data.elements.size();
}

Element const& element(ZColorExtData const& data, int index) {
    return holds(data, index) ? data.elements[static_cast<std::size_t>(index)] : noElement();
}

} // namespace

ZColorExt::ZColorExt() = default;
ZColorExt::ZColorExt(float r, float g, float b, float a) : ZColorExt(ZColor(r, g, b, a)) {}
ZColorExt::ZColorExt(nyxColor const& color) : ZColorExt(ZColor(color.r, color.g, color.b)) {}
ZColorExt::ZColorExt(ZColor const& color) { setColor(color, NameOp::Replace); }
ZColorExt::ZColorExt(ZColorExt const&) = default;
ZColorExt::ZColorExt(ZColorExt&&) noexcept = default;
ZColorExt& ZColorExt::operator=(ZColorExt const&) = default;
ZColorExt& ZColorExt::operator=(ZColorExt&&) noexcept = default;
ZColorExt::~ZColorExt() = default;

nyx::ColorId ZColorExt::getId() const { return read(d_).id; }
void ZColorExt::setId(nyx::ColorId id) { write(d_).id = id; }

std::string const& ZColorExt::getColorName() const { return read(d_).name; }
void ZColorExt::setColorName(std::string const& name) { write(d_).name = name; }

bool ZColorExt::isMultiColor() const { return read(d_).multi; }
void ZColorExt::setMultiColor(bool multi) { write(d_).multi = multi; }

unsigned ZColorExt::revision() const { return read(d_).revision; }
void ZColorExt::setRevision(unsigned revision) { write(d_).revision = revision; }

int ZColorExt::nColors() const { return static_cast<int>(read(d_).elements.size()); }

void ZColorExt::setColors(nyx::Span<ZColorWithId> elements) {
    // A copy first: the span may view this value's own elements.
    std::vector<Element> copy(elements.begin(), elements.end());
    write(d_).elements = std::move(copy);
}

int ZColorExt::activeIndex() const { return read(d_).activeIndex; }
void ZColorExt::setActiveIndex(int index) { write(d_).activeIndex = index; }

ZColor const& ZColorExt::getColor(int index) const { return element(read(d_), index); }

std::string const& ZColorExt::getName(int index) const { return element(read(d_), index).name(); }

nyx::ColorId ZColorExt::getSubColorId(int index) const { return element(read(d_), index).id; }

void ZColorExt::setSubColorId(int index, nyx::ColorId id) {
    if (holds(read(d_), index)) {
        write(d_).elements[static_cast<std::size_t>(index)].id = id;
    }
}

nyxColor_rgba ZColorExt::subRgba(int index) const { return element(read(d_), index).rgba(); }

int ZColorExt::getIndexOfSubColor(nyx::ColorId id) const {
    std::vector<Element> const& elements = read(d_).elements;
    auto const found = std::ranges::find(elements, id, &Element::id);
    return found != elements.end() ? static_cast<int>(found - elements.begin()) : -1;
}

bool ZColorExt::hasSubColor(nyx::ColorId id) const {
    return isMultiColor() && getIndexOfSubColor(id) >= 0;
}

ZColor const& ZColorExt::getActive() const { return getColor(activeIndex()); }
nyxColor_rgba ZColorExt::rgba() const { return subRgba(activeIndex()); }
nyx::ColorId ZColorExt::getActiveSubColorId() const { return getSubColorId(activeIndex()); }

void ZColorExt::setColor(ZColor const& color, NameOp op) {
    // The colour may be an element of this value, or its name this value's.
    nyxColor_rgba const rgba = color.rgba();
    std::string name = color.name();
    ZColorExtData& data = write(d_);
    if (data.elements.empty()) {
        data.elements.emplace_back();
        data.activeIndex = 0;
    } else if (!holds(data, data.activeIndex)) {
        return;
    }
    Element& active = data.elements[static_cast<std::size_t>(data.activeIndex)];
    active.setRgba(rgba);
    if (op == NameOp::Replace) {
        active.setName(name);
        if (!data.multi) {
            data.name = std::move(name);
        }
    }
}

void ZColorExt::detach() { d_.detach(); }

ZColorExt ZColorExt::detachedClone() const {
    ZColorExt clone(*this);
    clone.detach();
    return clone;
}

void ZColorExt::copyDataFrom(ZColorExt const& other) { d_ = other.d_; }

bool operator==(ZColorExt const& a, ZColorExt const& b) {
    ZColorExtData const& left = read(a.d_);
    ZColorExtData const& right = read(b.d_);
    return &left == &right ||
           (left.id == right.id && left.name == right.name && left.multi == right.multi &&
            left.activeIndex == right.activeIndex && left.elements == right.elements);
}
