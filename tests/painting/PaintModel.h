#pragma once

#include "nyxembedded/LayerPixels.h"

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

/// The surface as its documents tell it: the list from the top, what each entry of the history does
/// to it, and what is painted on each layer.
struct PaintModel {
    struct Layer {
        unsigned id;
        std::string name;
        int mode = 0;
        bool deleted = false, visible = true;
        float background = 0;
        nyx::embedded::LayerPixels pixels{64};
    };
    std::vector<Layer> layers;
    unsigned edit = 0;
    unsigned nextId = 2;

    Layer& at(unsigned id) {
        return *std::find_if(layers.begin(), layers.end(), [&](auto& l) { return l.id == id; });
    }
    unsigned indexOf(unsigned id) { return static_cast<unsigned>(&at(id) - layers.data()); }
    void setDeleted(unsigned id, bool deleted) {
        at(id).deleted = deleted;
        unsigned const i = indexOf(id);
        for (unsigned above = i + 1; above-- > 0;) {
            if (!layers[above].deleted) {
                edit = above;
                return;
            }
        }
        for (unsigned below = i; below < layers.size(); ++below) {
            if (!layers[below].deleted) {
                edit = below;
                return;
            }
        }
    }
    void move(unsigned id, unsigned target) {
        Layer const layer = at(id);
        unsigned const to = target == 0 ? 0 : indexOf(target);
        layers.erase(layers.begin() + indexOf(id));
        layers.insert(layers.begin() + to, layer);
    }
    [[nodiscard]] std::string text() const {
        std::ostringstream out;
        for (unsigned i = 0; i < layers.size(); ++i) {
            Layer const& l = layers[i];
            out << (i == edit ? "*" : " ") << l.id << ' ' << l.name << ' ' << l.mode << ' '
                << l.deleted << l.visible << ' ' << l.background << '\n';
        }
        return out.str();
    }
};
