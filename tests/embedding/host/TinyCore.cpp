#include "nyxrender/nyxRT_api.h"
#include "zcore/ZColorExt.h"
#include "zcore/ZMainThreadCallback.h"
#include "zcore/splitTrailingNumber.h"

#include <QMetaObject>
#include <QSharedData>

#include <algorithm>
#include <tuple>
#include <vector>

class ZColorExtData : public QSharedData {
public:
    nyx::ColorId id;
    std::string name;
    bool multi = false;
    unsigned revision = 0;
    int active = 0;
    std::vector<ZColorExt::ZColorWithId> colors;

    ZColorExt::ZColorWithId const& at(int index) const {
        static ZColorExt::ZColorWithId const none;
        return index >= 0 && index < static_cast<int>(colors.size())
                   ? colors[static_cast<std::size_t>(index)]
                   : none;
    }
};

ZColorExt::ZColorExt() : d_(new ZColorExtData) {}
ZColorExt::ZColorExt(float r, float g, float b, float a) : ZColorExt(ZColor(r, g, b, a)) {}
ZColorExt::ZColorExt(nyxColor const& color) : ZColorExt(color.r, color.g, color.b) {}
ZColorExt::ZColorExt(ZColor const& color) : ZColorExt() {
    d_->name = color.name();
    d_->colors.emplace_back(color, nyx::ColorId());
}
ZColorExt::ZColorExt(ZColorExt const&) = default;
ZColorExt::ZColorExt(ZColorExt&&) noexcept = default;
ZColorExt& ZColorExt::operator=(ZColorExt const&) = default;
ZColorExt& ZColorExt::operator=(ZColorExt&&) noexcept = default;
ZColorExt::~ZColorExt() = default;

nyx::ColorId ZColorExt::getId() const { return d_->id; }
void ZColorExt::setId(nyx::ColorId id) { d_->id = id; }
std::string const& ZColorExt::getColorName() const { return d_->name; }
void ZColorExt::setColorName(std::string const& name) { d_->name = name; }
bool ZColorExt::isMultiColor() const { return d_->multi; }
void ZColorExt::setMultiColor(bool multi) { d_->multi = multi; }
unsigned ZColorExt::revision() const { return d_->revision; }
void ZColorExt::setRevision(unsigned revision) { d_->revision = revision; }
int ZColorExt::nColors() const { return static_cast<int>(d_->colors.size()); }
void ZColorExt::setColors(nyx::Span<ZColorWithId> elements) {
    d_->colors.assign(elements.begin(), elements.end());
}
int ZColorExt::activeIndex() const { return d_->active; }
void ZColorExt::setActiveIndex(int index) { d_->active = index; }
ZColor const& ZColorExt::getColor(int index) const { return d_->at(index); }
std::string const& ZColorExt::getName(int index) const { return d_->at(index).name(); }
nyx::ColorId ZColorExt::getSubColorId(int index) const { return d_->at(index).id; }
void ZColorExt::setSubColorId(int index, nyx::ColorId id) {
    if (index >= 0 && index < nColors()) {
        d_->colors[static_cast<std::size_t>(index)].id = id;
    }
}
nyxColor_rgba ZColorExt::subRgba(int index) const { return d_->at(index).rgba(); }
int ZColorExt::getIndexOfSubColor(nyx::ColorId id) const {
    auto const found = std::ranges::find(d_->colors, id, &ZColorWithId::id);
    return found == d_->colors.end() ? -1 : static_cast<int>(found - d_->colors.begin());
}
bool ZColorExt::hasSubColor(nyx::ColorId id) const {
    return isMultiColor() && getIndexOfSubColor(id) >= 0;
}
ZColor const& ZColorExt::getActive() const { return d_->at(d_->active); }
nyxColor_rgba ZColorExt::rgba() const { return getActive().rgba(); }
nyx::ColorId ZColorExt::getActiveSubColorId() const { return d_->at(d_->active).id; }
void ZColorExt::setColor(ZColor const& color, NameOp op) {
    if (d_->colors.empty()) {
        d_->colors.emplace_back();
    }
    if (d_->active < 0 || d_->active >= nColors()) {
        return;
    }
    ZColor& active = d_->colors[static_cast<std::size_t>(d_->active)];
    active.setRgba(color.rgba());
    if (op == NameOp::Replace) {
        active.setName(color.name());
        if (!d_->multi) {
            d_->name = color.name();
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
    auto const all = [](ZColorExtData const& data) {
        return std::tie(data.id, data.name, data.multi, data.active, data.colors);
    };
    return all(*a.d_) == all(*b.d_);
}

// Only for callbacks that the main thread makes, as the library does.
ZMainThreadCallback::ZMainThreadCallback(nyxRT_api* api, std::function<void()> function,
                                         QObject* parent)
    : QObject(parent),
      function_(std::move(function)),
      parentGuard_(parent),
      hasParent_(parent),
      waitsForApi_(api) {
    auto const runGuarded = [guard = QPointer<ZMainThreadCallback>(this)] {
        if (guard) {
            guard->run();
        }
    };
    if (api) {
        api->call_after_sync(runGuarded);
    } else {
        QMetaObject::invokeMethod(this, runGuarded, Qt::QueuedConnection);
    }
}
ZMainThreadCallback::~ZMainThreadCallback() = default;
void ZMainThreadCallback::customEvent(QEvent*) {}
bool ZMainThreadCallback::isOrphan() const { return hasParent_ && !parentGuard_; }
void ZMainThreadCallback::run() {
    if (!isOrphan()) {
        function_();
    }
    delete this;
}

std::pair<QString, int> splitTrailingNumber(QString const& text) {
    qsizetype begin = text.size();
    while (begin > 0 && text[begin - 1] >= u'0' && text[begin - 1] <= u'9') {
        --begin;
    }
    bool fits = false;
    int const number = text.mid(begin).toInt(&fits);
    if (!fits) {
        return {text, 0};
    }
    return {text.left(begin > 0 && text[begin - 1] == u' ' ? begin - 1 : begin), number};
}
