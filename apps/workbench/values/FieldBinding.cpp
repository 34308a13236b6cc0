#include "workbench/values/FieldBinding.h"

#include "workbench/scene/Scene.h"
#include "workbench/values/ValueField.h"

#include <algorithm>
#include <utility>

namespace workbench {

namespace {

int nextEdit() {
    static int last = 0;
    return ++last;
}

} // namespace

FieldBinding::FieldBinding(Scene& scene, ValueField& field, ParameterItems items,
                           ParameterWriter writer)
    : QObject(&field),
      scene_(scene),
      field_(field),
      items_(std::move(items)),
      writer_(std::move(writer)) {
    connect(&field, &ValueField::pressed, this, &FieldBinding::begin);
    connect(&field, &ValueField::moved, this, [this] {
        if (drag_ && drag_->isActive()) {
            wanted_ = wantedNow();
            drag_->move();
        } else { // it ended under the pointer
            refresh();
        }
    });
    connect(&field, &ValueField::released, this, &FieldBinding::end);
    connect(&field, &ValueField::cancelled, this, &FieldBinding::cancel);
    connect(&field, &ValueField::stepped, this, [this] {
        auto wanted = wantedNow();
        if (!drag_ || !drag_->isActive()) {
            std::shared_ptr<zsg::Variant const> const value = field_.wanted();
            begin(); // what ends by that makes the field show the value that it had
            field_.showValue(*value);
        }
        wanted_ = std::move(wanted);
        drag_->move();
        drag_->endSoon();
    });
    connect(&field, &ValueField::finished, this, &FieldBinding::end);
    connect(&field, &ValueField::said, &scene, &Scene::say);
    refresh();
}

FieldBinding::~FieldBinding() {
    if (drag_) {
        drag_->disconnect(this); // the field is half gone when it takes the binding along
    }
}

void FieldBinding::setItems(ParameterItems items) {
    end();
    items_ = std::move(items);
    refresh();
}

void FieldBinding::refresh() {
    if (items_.empty() || (drag_ && drag_->isActive())) {
        return;
    }
    auto const first = valueOf(items_.front().parameter);
    if (!first) {
        return;
    }
    bool const isMixed = std::ranges::any_of(items_, [&first](ParameterItem const& item) {
        auto const other = valueOf(item.parameter);
        return other && !isSame(*first, *other);
    });
    if (isMixed) {
        field_.showMixed(*first);
    } else {
        field_.showValue(*first);
    }
}

void FieldBinding::write(std::vector<std::shared_ptr<zsg::Variant const>> const& values) {
    end();
    scene_.endDrags();
    wanted_ = values;
    edit_ = nextEdit();
    push(EditDrag::Step::Last);
    refresh();
}

void FieldBinding::writeAll(std::shared_ptr<zsg::Variant const> const& value) {
    write(std::vector<std::shared_ptr<zsg::Variant const>>(items_.size(), value));
}

void FieldBinding::reset() {
    std::vector<std::shared_ptr<zsg::Variant const>> originals;
    for (ParameterItem const& item : items_) {
        originals.push_back(item.original);
    }
    write(originals);
}

bool FieldBinding::isChanged() const {
    return std::ranges::any_of(items_, [](ParameterItem const& item) {
        auto const now = valueOf(item.parameter);
        return now && item.original && !isSame(*now, *item.original);
    });
}

void FieldBinding::begin() {
    scene_.endDrags();
    before_.clear();
    for (ParameterItem const& item : items_) {
        before_.push_back(valueOf(item.parameter));
    }
    wanted_ = before_;
    edit_ = nextEdit();
    drag_ = std::make_unique<EditDrag>(scene_, field_,
                                       EditDrag::Target{[this](EditDrag::Step step) { push(step); },
                                                        [this] { wanted_ = before_; }});
    connect(drag_.get(), &EditDrag::ended, this, &FieldBinding::refresh);
}

std::vector<std::shared_ptr<zsg::Variant const>> FieldBinding::wantedNow() const {
    std::vector<std::shared_ptr<zsg::Variant const>> wanted(items_.size(), field_.wanted());
    bool const isGoingOn = drag_ && drag_->isActive() && wanted_.size() == items_.size();
    for (std::size_t i = 0; items_.size() > 1 && i < items_.size(); ++i) {
        std::shared_ptr<zsg::Variant const> const present =
            isGoingOn ? wanted_[i] : valueOf(items_[i].parameter);
        if (auto own = present ? field_.wantedFor(*present) : nullptr) {
            wanted[i] = std::move(own);
        }
    }
    return wanted;
}

void FieldBinding::end() {
    if (drag_) {
        drag_->end();
    }
}

void FieldBinding::cancel() {
    if (drag_) {
        drag_->cancel();
    }
}

void FieldBinding::push(EditDrag::Step step) {
    ParameterWrite write;
    for (std::size_t i = 0; i < items_.size() && i < wanted_.size(); ++i) {
        if (wanted_[i]) {
            write.changes.push_back({items_[i].parameter, wanted_[i]});
        }
    }
    if (!write.changes.empty()) {
        write.step = step;
        write.edit = edit_;
        writer_(write);
    }
}

} // namespace workbench
