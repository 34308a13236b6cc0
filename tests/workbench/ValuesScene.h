#pragma once

#include "workbench/WindowScene.h"
#include "workbench/values/ValuesPanel.h"

/// The window with the values in front.
class ValuesScene : public WindowScene {
protected:
    void SetUp() override {
        WindowScene::SetUp();
        window.showPanel("values");
        settle();
    }

    workbench::ValuesPanel& panel() {
        return *static_cast<workbench::ValuesPanel*>(window.panel("values"));
    }
    void choose(char const* name) {
        ASSERT_TRUE(panel().select(name));
        settle();
    }
};
