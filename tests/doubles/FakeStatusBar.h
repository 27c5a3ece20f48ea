#pragma once

#include <memory>
#include <utility>

#include "platform/StatusBar.h"

namespace orlamo {

/// What the status item was told; outlives it.
struct FakeStatusItemRecord {
    double length = 0;
    NamedImage image;
    Menu menu;
    bool isVisible = false;
    bool isAlive = true;
};

class FakeStatusItem : public StatusItem {
public:
    explicit FakeStatusItem(std::shared_ptr<FakeStatusItemRecord> record) : record_(std::move(record)) {}
    ~FakeStatusItem() override { record_->isAlive = record_->isVisible = false; }
    void setImage(const NamedImage& image) override { record_->image = image; }
    void setMenu(const Menu& menu) override { record_->menu = menu; }
    bool isVisible() const override { return record_->isVisible; }
    void setVisible(bool visible) override { record_->isVisible = visible; }

private:
    std::shared_ptr<FakeStatusItemRecord> record_;
};

class FakeStatusBar : public StatusBar {
public:
    std::unique_ptr<StatusItem> statusItemWithLength(double length) override {
        item = std::make_shared<FakeStatusItemRecord>();
        item->length = length;
        return std::make_unique<FakeStatusItem>(item);
    }

    std::shared_ptr<FakeStatusItemRecord> item;  // the one made last

private:
    Installation installation_{*this};
};

}  // namespace orlamo
