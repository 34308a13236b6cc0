#include "workbench/values/ValueStore.h"

#include "workbench/scene/Scene.h"

#include "zcore/ZUndoCommand.h"
#include "zcore/ZUndoStack.h"

#include <algorithm>
#include <utility>

namespace workbench {

using Value = std::shared_ptr<zsg::Variant const>;

/// The values of one kind.
class ValueStore::Shelf {
public:
    virtual ~Shelf() = default;

    [[nodiscard]] virtual std::vector<std::string> names() const = 0;
    /// A copy; null for a name that is not there.
    [[nodiscard]] virtual std::unique_ptr<zsg::Variant> get(std::string const& name) const = 0;
    /// Null takes the name away.
    virtual void put(std::string const& name, zsg::Variant const* value) = 0;
};

namespace {

template <class T>
class ShelfOf final : public ValueStore::Shelf {
public:
    explicit ShelfOf(std::map<std::string, T>& values) : values_(values) {}

    [[nodiscard]] std::vector<std::string> names() const override {
        std::vector<std::string> names;
        for (auto const& entry : values_) {
            names.push_back(entry.first);
        }
        return names;
    }
    [[nodiscard]] std::unique_ptr<zsg::Variant> get(std::string const& name) const override {
        auto const found = values_.find(name);
        return found == values_.end() ? nullptr : copyOf(found->second);
    }
    void put(std::string const& name, zsg::Variant const* value) override {
        if (value) {
            values_.insert_or_assign(name, stored(*value));
        } else {
            values_.erase(name);
        }
    }

private:
    using Holder = std::shared_ptr<zsg::Variant>;

    static std::unique_ptr<zsg::Variant> copyOf(T const& value) {
        if constexpr (std::is_same_v<T, Holder>) {
            return std::unique_ptr<zsg::Variant>(value->cloneValue());
        } else {
            return makeValue(value);
        }
    }
    static T stored(zsg::Variant const& value) {
        if constexpr (std::is_same_v<T, Holder>) {
            return Holder(value.cloneValue());
        } else {
            return *zsg::tryGet<T>(value);
        }
    }

    std::map<std::string, T>& values_;
};

/// What a parameter of a named value holds: the value that has the name at this moment. After the
/// name went away it reads as the type's default, and setting it brings it back.
class NamedHolder final : public zsg::Variant {
public:
    NamedHolder(std::shared_ptr<ValueStore::Shelf> shelf, std::string name, zsg::Type type)
        : shelf_(std::move(shelf)), name_(std::move(name)), type_(type) {}

    [[nodiscard]] zsg::Type type() const override { return type_; }
    bool set(void const* value) override {
        auto const next = present();
        bool const isChanged = next->set(value);
        shelf_->put(name_, next.get());
        return isChanged;
    }
    void get(void* out) const override { present()->get(out); }
    bool copyTo(zsg::Variant& target) const override { return present()->copyTo(target); }

private:
    [[nodiscard]] std::unique_ptr<zsg::Variant> present() const {
        auto value = shelf_->get(name_);
        return value && value->type() == type_
                   ? std::move(value)
                   : std::unique_ptr<zsg::Variant>(zsg::makeVariant(type_));
    }

    std::shared_ptr<ValueStore::Shelf> shelf_;
    std::string name_;
    zsg::Type type_;
};

/// Gives a name a value, or takes it away, and back.
class NameValue final : public ZUndoCommand {
    Q_DECLARE_TR_FUNCTIONS(NameValue)

public:
    NameValue(std::shared_ptr<ValueStore::Shelf> shelf, std::string name, Value value)
        : ZUndoCommand(ZCommandId{1003}),
          shelf_(std::move(shelf)),
          name_(std::move(name)),
          before_(shelf_->get(name_)),
          after_(std::move(value)) {
        setText((after_ ? tr("New Value %1") : tr("Delete Value %1"))
                    .arg(QString::fromStdString(name_)));
    }

    bool undo() override {
        shelf_->put(name_, before_.get());
        return true;
    }
    bool redo() override {
        shelf_->put(name_, after_.get());
        return true;
    }

private:
    std::shared_ptr<ValueStore::Shelf> shelf_;
    std::string name_;
    Value before_;
    Value after_;
};

/// A macro that ends with the scope.
class Macro {
public:
    Macro(ZUndoStack& stack, QString const& text) : stack_(stack) { stack_.beginMacro(text); }
    ~Macro() { stack_.endMacro({}); }
    Macro(Macro const&) = delete;
    Macro& operator=(Macro const&) = delete;

private:
    ZUndoStack& stack_;
};

} // namespace

ValueStore::ValueStore(Scene& scene, Maps const& maps) : scene_(scene) {
    // In the order of Kind.
    shelves_.push_back(std::make_shared<ShelfOf<zsg::WeavePattern>>(maps.weaves));
    shelves_.push_back(std::make_shared<ShelfOf<zsg::ColorGradient>>(maps.gradients));
    shelves_.push_back(std::make_shared<ShelfOf<zsg::AnimationCurve>>(maps.curves));
    shelves_.push_back(std::make_shared<ShelfOf<zsg::FloatArray>>(maps.metals));
    shelves_.push_back(std::make_shared<ShelfOf<std::shared_ptr<zsg::Variant>>>(maps.others));
}

ValueStore::~ValueStore() = default;

ValueStore::Shelf& ValueStore::shelf(Kind kind) const {
    return *shelves_[static_cast<std::size_t>(kind)];
}

std::vector<ValueStore::Key> ValueStore::keys() const {
    std::vector<Key> keys;
    for (std::size_t kind = 0; kind < shelves_.size(); ++kind) {
        for (std::string& name : shelves_[kind]->names()) {
            keys.push_back({static_cast<Kind>(kind), std::move(name)});
        }
    }
    return keys;
}

bool ValueStore::contains(Key const& key) const { return shelf(key.kind).get(key.name) != nullptr; }

ParameterItem ValueStore::item(Key const& key) {
    auto value = shelf(key.kind).get(key.name);
    if (!value) {
        items_.erase(key);
        return {};
    }
    ParameterItem& item = items_[key];
    if (item.parameter.isNull() || item.parameter.type() != value->type()) {
        auto holder = std::make_unique<NamedHolder>(shelves_[static_cast<std::size_t>(key.kind)],
                                                    key.name, value->type());
        zsg::Parameter::Builder builder("value", QString::fromStdString(key.name));
        item.parameter = builder.setValue(holder.release());
        item.original = std::move(value);
    }
    return item;
}

bool ValueStore::add(Key const& key, Value const& value) {
    if (key.name.empty() || contains(key)) {
        return false;
    }
    scene_.endDrags();
    items_.erase(key); // of one that had the name before
    auto const& shelf = shelves_[static_cast<std::size_t>(key.kind)];
    scene_.undoStack().push(std::make_unique<NameValue>(shelf, key.name, value).release());
    return true;
}

void ValueStore::remove(Key const& key) {
    scene_.endDrags();
    auto const& shelf = shelves_[static_cast<std::size_t>(key.kind)];
    scene_.undoStack().push(std::make_unique<NameValue>(shelf, key.name, nullptr).release());
}

bool ValueStore::rename(Key const& key, std::string const& name) {
    if (name.empty() || contains({key.kind, name})) {
        return false;
    }
    scene_.endDrags();
    Macro const macro(scene_.undoStack(), QCoreApplication::translate("NameValue", "Rename Value"));
    add({key.kind, name}, shelf(key.kind).get(key.name));
    remove(key);
    return true;
}

void ValueStore::put(Key const& key, zsg::Variant const& value) {
    shelf(key.kind).put(key.name, &value);
}

std::string ValueStore::freeName(Kind kind, std::string const& wanted) const {
    std::string name = wanted;
    for (int number = 2; contains({kind, name}); ++number) {
        name = wanted + ' ' + std::to_string(number);
    }
    return name;
}

} // namespace workbench
