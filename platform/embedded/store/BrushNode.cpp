#include "store/BrushNode.h"

#include <algorithm>
#include <cstddef>
#include <functional>

nyx::painter::nyxBrush_node::~nyxBrush_node() = default;

namespace nyx::embedded {

BrushNode::BrushNode(BrushKind const& kind) : kind_(kind), params_(kind.params.size()) {
    for (std::size_t i = 0; i < params_.size(); ++i) {
        BrushParamKind const& wanted = kind.params[i];
        Param& param = params_[i];
        param.name = wanted.name;
        param.type = wanted.type;
        param.hint = wanted.hint;
        switch (wanted.type) {
        case nyxScene_api::TypeFloat:
            param.value.f = wanted.initial;
            break;
        case nyxScene_api::TypeColor:
            std::ranges::fill(param.value.c, wanted.initial);
            break;
        case BrushInteger:
            param.value.i = static_cast<int>(wanted.initial);
            break;
        case BrushBoolean:
            param.value.b = wanted.initial != 0;
            break;
        default: // a file, a shader, a node: null, as it is made
            break;
        }
        pointers_.push_back(&param);
    }
    publish();
}

BrushNode::Param* BrushNode::find(std::string_view name, int type) {
    auto const found = std::ranges::find_if(
        params_, [&](Param const& param) { return param.type == type && name == param.name; });
    return found == params_.end() ? nullptr : &*found;
}

bool BrushNode::owns(Param const& param) const {
    std::less<> const before;
    return !before(&param, params_.data()) && before(&param, params_.data() + params_.size());
}

void BrushNode::publish() {
    published_.resize(params_.size());
    std::ranges::transform(params_, published_.begin(), &Param::value);
    publishedImage_ = image_;
}

BrushNode::Param::Value const* BrushNode::published(std::string_view name, int type) const {
    for (std::size_t i = 0; i < params_.size(); ++i) {
        if (params_[i].type == type && name == params_[i].name) {
            return &published_[i];
        }
    }
    return nullptr;
}

} // namespace nyx::embedded
