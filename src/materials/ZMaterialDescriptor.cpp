#include "zsg/materials/ZMaterialDescriptor.h"

#include "materials/logging.h"
#include "materials/metadataText.h"
#include "zsg/materials/cmfFieldKey.h"

namespace zsg {

namespace {

/// Whether a value fits into metadata inside `around` levels; says so when not.
bool fits(nlohmann::json const& value, int around) {
    bool const isTooDeep = isNestedDeeper(value, deepestMetadata - around);
    if (isTooDeep) {
        qCWarning(zsgMaterials) << "Metadata that is nested too deeply is not taken.";
    }
    return !isTooDeep;
}

} // namespace

ZMaterialDescriptor::ZMaterialDescriptor(MaterialId id, std::vector<unsigned int> const& items)
    : id_(id), values_(std::make_shared<Values>()), items_(items) {}

ZMaterialDescriptor::ZMaterialDescriptor(ZMaterialDescriptor const&) = default;

ZMaterialDescriptor& ZMaterialDescriptor::operator=(ZMaterialDescriptor const&) = default;

ZMaterialDescriptor::~ZMaterialDescriptor() = default;

MaterialId ZMaterialDescriptor::id() const { return id_; }

bool ZMaterialDescriptor::hasValue(std::string const& key) const { return values_->contains(key); }

std::map<std::string, std::string> const& ZMaterialDescriptor::values() const { return *values_; }

std::map<std::string, std::string>& ZMaterialDescriptor::values() {
    if (values_.use_count() > 1) {
        values_ = std::make_shared<Values>(*values_);
    }
    return *values_;
}

void ZMaterialDescriptor::setValue(std::string const& key, std::string const& value) {
    if (!key.empty()) {
        values().insert_or_assign(key, value);
    }
}

void ZMaterialDescriptor::setValue(int field, std::string const& value) {
    setValue(cmfFieldKey(field), value);
}

std::string ZMaterialDescriptor::value(std::string const& key) const {
    auto const found = values_->find(key);
    return found == values_->end() ? std::string() : found->second;
}

std::string ZMaterialDescriptor::value(int field) const { return value(cmfFieldKey(field)); }

void ZMaterialDescriptor::removeValue(std::string const& key) {
    if (hasValue(key)) {
        values().erase(key);
    }
}

void ZMaterialDescriptor::removeValue(int field) { removeValue(cmfFieldKey(field)); }

void ZMaterialDescriptor::removeMetadata(std::string const& key) {
    if (metadata_.is_object()) {
        metadata_.erase(key);
    }
}

void ZMaterialDescriptor::setMetadata(std::string const& key, nlohmann::json const& value) {
    if (fits(value, 1)) {
        metadata_[key] = value;
    }
}

nlohmann::json ZMaterialDescriptor::metadata(std::string const& key) const {
    if (!metadata_.is_object()) {
        return nullptr;
    }
    auto const found = metadata_.find(key);
    return found == metadata_.end() ? nlohmann::json() : *found;
}

nlohmann::json ZMaterialDescriptor::metadata() const { return metadata_; }

void ZMaterialDescriptor::setMetadata(nlohmann::json const& metadata) {
    if (fits(metadata, 0)) {
        metadata_ = metadata;
    }
}

void ZMaterialDescriptor::reserved() {}

bool ZMaterialDescriptor::hasItems() const { return !items_.empty(); }

std::vector<unsigned int> const& ZMaterialDescriptor::items() const { return items_; }

} // namespace zsg
