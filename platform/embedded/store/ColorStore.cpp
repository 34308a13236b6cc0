#include "store/ColorStore.h"

#include <utility>

namespace nyx::embedded {

nyx::ColorId ColorStore::add(ColorRecord record) {
    noticeLentFlags();
    nyx::ColorId const id(contents_.records.idFor(record.id.toUint()));
    record.id = id;
    ColorRecord const* const added = contents_.records.emplace(id.toUint(), std::move(record));
    if (!added) {
        return {};
    }
    list(*added, {}, listsOf(*added, added->flags));
    contents_.subColors.list(id, added->subColors);
    ++revision_;
    return id;
}

bool ColorStore::update(ColorRecord const& values) {
    noticeLentFlags();
    nyx::ColorId const id = values.id;
    ColorRecord* const record = contents_.records.find(id.toUint());
    if (!record) {
        return false;
    }
    bool changed = false;
    if (record->name != values.name || record->flags != values.flags) {
        Lists const before = listsOf(*record, record->flags);
        if (before.named) {
            contents_.names.remove(record->name, id);
        }
        record->name = values.name;
        record->flags = values.flags;
        Lists const after = listsOf(*record, record->flags);
        if (after.named) {
            contents_.names.add(record->name, id);
        }
        enlist(id, before, after);
        if (lent_ == record) {
            lentFlagsSeen_ = record->flags;
        }
        ++revision_;
        changed = true;
    }
    if (record->subColors != values.subColors) {
        contents_.subColors.relist(id, record->subColors, values.subColors);
        record->subColors = values.subColors;
        changed = true;
    }
    auto const assign = [&changed](auto& field, auto const& value) {
        if (field != value) {
            field = value;
            changed = true;
        }
    };
    assign(record->originalName, values.originalName);
    assign(record->value, values.value);
    assign(record->activeSub, values.activeSub);
    return changed;
}

ColorStore::Lists ColorStore::listsOf(ColorRecord const& record, std::uint32_t flags) {
    bool const listed = (flags & nyxColor_flags::Temporary) == 0;
    bool const multi = (flags & nyxColor_flags::MultiColor) != 0;
    return {listed && !multi, listed && multi, listed && !record.name.empty()};
}

void ColorStore::enlist(nyx::ColorId id, Lists before, Lists after) {
    auto const apply = [id](IdList& list, bool was, bool is) {
        if (was && !is) {
            list.erase(id);
        } else if (is && !was) {
            list.insert(id);
        }
    };
    apply(contents_.plain, before.plain, after.plain);
    apply(contents_.multi, before.multi, after.multi);
    apply(contents_.named, before.named, after.named);
}

/// The same for a record whose name stays.
void ColorStore::list(ColorRecord const& record, Lists before, Lists after) {
    if (before.named && !after.named) {
        contents_.names.remove(record.name, record.id);
    } else if (after.named && !before.named) {
        contents_.names.add(record.name, record.id);
    }
    enlist(record.id, before, after);
}

bool ColorStore::remove(nyx::ColorId id) {
    noticeLentFlags();
    ColorRecord const* const record = find(id);
    if (!record) {
        return false;
    }
    list(*record, listsOf(*record, record->flags), {});
    contents_.subColors.unlist(id, record->subColors);
    if (lent_ == record) {
        lent_ = nullptr;
    }
    contents_.records.erase(id.toUint());
    ++revision_;
    return true;
}

nyxColor_record* ColorStore::lend(nyx::ColorId id) {
    noticeLentFlags();
    lent_ = contents_.records.find(id.toUint());
    lentFlagsSeen_ = lent_ ? lent_->flags : 0;
    return lent_;
}

/// The borrower of the last record writes its flags without a call; what depends on flags is put
/// right before anybody can see it.
void ColorStore::noticeLentFlags() {
    if (!lent_ || lent_->flags == lentFlagsSeen_) {
        return;
    }
    ColorRecord const& record = *find(lent_->id);
    Lists const before = listsOf(record, lentFlagsSeen_);
    lentFlagsSeen_ = lent_->flags;
    list(record, before, listsOf(record, lent_->flags));
    ++revision_;
}

nyx::Span<nyx::ColorId> ColorStore::plain() {
    noticeLentFlags();
    return contents_.plain.ids();
}

nyx::Span<nyx::ColorId> ColorStore::multi() {
    noticeLentFlags();
    return contents_.multi.ids();
}

nyx::Span<nyx::ColorId> ColorStore::named() {
    noticeLentFlags();
    return contents_.named.ids();
}

std::vector<nyx::ColorId> ColorStore::named(std::string const& name) {
    noticeLentFlags();
    return contents_.names.holders(name);
}

std::string ColorStore::uniqueName(std::string const& name, nyx::Span<nyx::ColorId> ignored) {
    noticeLentFlags();
    return contents_.names.unique(name, ignored, [this](nyx::ColorId id) {
        ColorRecord const* const record = find(id);
        return record ? &record->name : nullptr;
    });
}

unsigned ColorStore::revision() {
    noticeLentFlags();
    return revision_;
}

void ColorStore::takeContents(ColorStore& fresh) {
    std::swap(contents_, fresh.contents_);
    skipIdsBelow(fresh.nextId());
    ++revision_;
    lent_ = nullptr;
    fresh.lent_ = nullptr;
}

} // namespace nyx::embedded
