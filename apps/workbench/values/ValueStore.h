#pragma once

#include "workbench/values/parameterValue.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace workbench {

class Scene;

/// The values that have a name, shared with the commands of the console. What is done to them here
/// goes to the history; commands change them at once. They belong to the program that runs, not to
/// the scene.
class ValueStore {
public:
    enum class Kind { Weave, Gradient, Curve, Metal, Other };

    struct Key {
        Kind kind = Kind::Other;
        std::string name;

        friend auto operator<=>(Key const&, Key const&) = default;
    };

    /// Of each kind the names with their values; of the others each has its own type. They are
    /// borrowed and must outlive the store and the history.
    struct Maps {
        std::map<std::string, zsg::WeavePattern>& weaves;
        std::map<std::string, zsg::ColorGradient>& gradients;
        std::map<std::string, zsg::AnimationCurve>& curves;
        std::map<std::string, zsg::FloatArray>& metals;
        std::map<std::string, std::shared_ptr<zsg::Variant>>& others;
    };

    ValueStore(Scene& scene, Maps const& maps);
    ~ValueStore();

    /// By kind, then by name.
    [[nodiscard]] std::vector<Key> keys() const;
    [[nodiscard]] bool contains(Key const& key) const;
    /// The value as a parameter called "value", labelled by its name. Reset brings back what it was
    /// when it was first asked for. Null for a key that is not there.
    [[nodiscard]] ParameterItem item(Key const& key);

    /// False, and nothing happens, when the name is empty or taken.
    bool add(Key const& key, std::shared_ptr<zsg::Variant const> const& value);
    void remove(Key const& key);
    /// The same false as add().
    bool rename(Key const& key, std::string const& name);
    /// As add() without the history, for what was kept; an existing value of the name is replaced.
    void put(Key const& key, zsg::Variant const& value);
    /// A name that is free: the text itself, or with a number behind it.
    [[nodiscard]] std::string freeName(Kind kind, std::string const& wanted) const;

    class Shelf;

private:
    [[nodiscard]] Shelf& shelf(Kind kind) const;

    Scene& scene_;
    std::vector<std::shared_ptr<Shelf>> shelves_; ///< shared with the commands of the history
    std::map<Key, ParameterItem> items_;
};

} // namespace workbench
