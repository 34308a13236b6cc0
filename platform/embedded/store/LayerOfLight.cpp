#include "store/LayerOfLight.h"

#include <algorithm>

namespace nyx::embedded {

std::uint8_t LayerOfLight::find(nyx::ObjectId light) const {
    auto const page = pages_.find(light.toUint() / pageSize);
    return page == pages_.end() ? std::uint8_t(0) : page->second[light.toUint() % pageSize];
}

void LayerOfLight::put(nyx::ObjectId light, std::uint8_t layer) {
    pages_[light.toUint() / pageSize][light.toUint() % pageSize] = layer;
}

std::vector<nyx::ObjectId> LayerOfLight::lights(std::uint8_t layer) const {
    std::vector<std::uint32_t> numbers;
    numbers.reserve(pages_.size());
    for (auto const& page : pages_) {
        numbers.push_back(page.first);
    }
    std::sort(numbers.begin(), numbers.end());
    std::vector<nyx::ObjectId> lights;
    for (std::uint32_t const number : numbers) {
        auto const& page = pages_.find(number)->second;
        for (std::uint32_t i = 0; i < pageSize; ++i) {
            if (page[i] == layer) {
                lights.emplace_back(number * pageSize + i);
            }
        }
    }
    return lights;
}

} // namespace nyx::embedded
