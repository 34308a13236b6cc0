#pragma once

#include "zsg/Export.h"
#include "zsg/materials/IMaterialDescriptor.h"

#include <nlohmann/json.hpp>

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace zsg {

/// A descriptor as the material handler makes them; an application may copy one, or make one that
/// describes a material anew. Copies are independent; they share the CMF values until one of them
/// changes them.
class ZSG_EXPORT ZMaterialDescriptor final : public IMaterialDescriptor {
public:
    /// Without values, and with null metadata.
    ZMaterialDescriptor(MaterialId id, std::vector<unsigned int> const& items);
    // What is moved from would have no values to show, so moving is copying.
    ZMaterialDescriptor(ZMaterialDescriptor const&);
    ZMaterialDescriptor& operator=(ZMaterialDescriptor const&);
    ~ZMaterialDescriptor() override;

    [[nodiscard]] MaterialId id() const override;
    [[nodiscard]] bool hasValue(std::string const& key) const override;
    [[nodiscard]] std::map<std::string, std::string> const& values() const override;
    [[nodiscard]] std::map<std::string, std::string>& values() override;
    void setValue(std::string const& key, std::string const& value) override;
    void setValue(int field, std::string const& value) override;
    [[nodiscard]] std::string value(std::string const& key) const override;
    [[nodiscard]] std::string value(int field) const override;
    void removeValue(std::string const& key) override;
    void removeValue(int field) override;
    void removeMetadata(std::string const& key) override;
    void setMetadata(std::string const& key, nlohmann::json const& value) override;
    [[nodiscard]] nlohmann::json metadata(std::string const& key) const override;
    [[nodiscard]] nlohmann::json metadata() const override;
    void setMetadata(nlohmann::json const& metadata) override;
    void reserved() override;
    [[nodiscard]] bool hasItems() const override;
    [[nodiscard]] std::vector<unsigned int> const& items() const override;

private:
    using Values = std::map<std::string, std::string>;

    MaterialId id_;
    std::shared_ptr<Values> values_; ///< never null
    std::vector<unsigned int> items_;
    nlohmann::json metadata_;
};

} // namespace zsg
