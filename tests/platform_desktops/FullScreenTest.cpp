// SPDX-License-Identifier: MIT
#include "support/Test.h"

#include "platform/linux/desktops/SwayFullScreen.h"

namespace {

TEST(SwayFullScreen, readsTheTree)
{
    // Window 7 has the focus. Workspaces always say that they are in full screen.
    const Table<const char *, const char *, std::optional<bool>> cases{
        {"plain", R"({"type": "con", "pid": 7, "focused": true, "fullscreen_mode": 0})", false},
        {"full", R"({"type": "con", "pid": 7, "focused": true, "fullscreen_mode": 1})", true},
        {"on all screens", R"({"type": "con", "pid": 7, "focused": true, "fullscreen_mode": 2})",
         true},
        {"its group", R"({"type": "con", "fullscreen_mode": 1,
                          "nodes": [{"type": "con", "pid": 7, "focused": true}]})",
         true},
        {"floating", R"({"type": "con", "nodes": [], "floating_nodes": [
                          {"type": "floating_con", "pid": 7, "focused": true, "fullscreen_mode": 1}]})",
         true},
        {"ours", R"({"type": "con", "pid": 5, "focused": true, "fullscreen_mode": 1})", false},
        {"without the focus", R"({"type": "con", "pid": 7, "fullscreen_mode": 1})", false},
        {"damaged", R"({"type": 3, "nodes": {}, "focused": "yes"}, 5)", false},
        {"cut off", R"({"type")", std::nullopt},
    };
    for (const auto &[what, windows, fullScreen] : cases) {
        const QByteArray tree =
            QByteArray(
                R"({"type": "root", "nodes": [{"type": "workspace", "fullscreen_mode": 1, "nodes": [)")
            + windows + "]}]}";
        EXPECT_EQ(isFocusFullScreen(tree, 5), fullScreen) << what;
    }
}

} // namespace
