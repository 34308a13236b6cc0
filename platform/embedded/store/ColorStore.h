#pragma once

#include "store/IdList.h"
#include "store/NameIndex.h"
#include "store/RecordStore.h"
#include "store/SubColorIndex.h"

#include "nyxembedded/ColorRecord.h"
#include "nyxrender/Ids.h"
#include "nyxrender/Span.h"

#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace nyx::embedded {

/// The colours and multi-colours of a scene, with the lists and the index of names over them. The
/// temporary colour (flag 4) is a record like any other, but it is in no list, and its name does
/// not count as taken. Main thread.
class ColorStore {
public:
    ColorStore() = default;
    ColorStore(ColorStore const&) = delete;
    ColorStore& operator=(ColorStore const&) = delete;

    /// An invalid id in the record means nextId(); the invalid id when it is below that. The name
    /// is taken as it is, and ids in the record need not exist.
    [[nodiscard]] nyx::ColorId add(ColorRecord record);
    [[nodiscard]] ColorRecord const* find(nyx::ColorId id) const {
        return contents_.records.find(id.toUint());
    }
    /// Gives the record values.id all of `values`. True when that changed anything.
    bool update(ColorRecord const& values);
    bool remove(nyx::ColorId id);
    /// Visits in creation order.
    template <class Visit>
    void forEach(Visit&& visit) const {
        contents_.records.forEach(visit);
    }
    [[nodiscard]] nyx::ColorId nextId() const { return nyx::ColorId(contents_.records.nextId()); }
    void skipIdsBelow(nyx::ColorId id) { contents_.records.skipIdsBelow(id.toUint()); }

    /// A record for a borrower who may write its flags, without a call, until the next lend(). Null
    /// when unknown.
    nyxColor_record* lend(nyx::ColorId id);

    // Lists, names and the revision. Lists are valid until the next change of a colour.

    [[nodiscard]] nyx::Span<nyx::ColorId> plain();
    [[nodiscard]] nyx::Span<nyx::ColorId> multi();
    [[nodiscard]] nyx::Span<nyx::ColorId> named();
    /// Those of a name, plain and multi, ascending.
    [[nodiscard]] std::vector<nyx::ColorId> named(std::string const& name);
    /// `name` itself when it is empty or free, else the first free numbered form of it.
    [[nodiscard]] std::string uniqueName(std::string const& name, nyx::Span<nyx::ColorId> ignored);
    /// Rises when a colour is made, removed, renamed or flagged differently.
    [[nodiscard]] unsigned revision();

    /// The records that list a colour among their sub-colours, whether or not they are flagged as
    /// multi-colours.
    [[nodiscard]] std::set<nyx::ColorId> const& listing(nyx::ColorId sub) const {
        return contents_.subColors.listing(sub);
    }

    /// Takes over all records of `fresh` in constant time and leaves it with those of this store.
    /// Ids that this one has given out stay used; the revision rises.
    void takeContents(ColorStore& fresh);

private:
    struct Contents {
        RecordStore<ColorRecord> records;
        IdList plain;
        IdList multi;
        IdList named;
        NameIndex names;
        SubColorIndex subColors;
    };

    /// Which lists a colour is in; a named one is in the index of names too.
    struct Lists {
        bool plain = false, multi = false, named = false;
    };

    void noticeLentFlags();
    static Lists listsOf(ColorRecord const& record, std::uint32_t flags);
    void enlist(nyx::ColorId id, Lists before, Lists after);
    void list(ColorRecord const& record, Lists before, Lists after);

    Contents contents_;
    unsigned revision_ = 1;
    ColorRecord* lent_ = nullptr;
    std::uint32_t lentFlagsSeen_ = 0;
};

} // namespace nyx::embedded
