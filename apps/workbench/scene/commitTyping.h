#pragma once

namespace workbench {

/// What was typed into a field, or into the editor of a list, and is not confirmed yet counts from
/// now on, as if the focus had left it. The focus stays where it is. To be called before anything
/// that reads the scene or leaves it without taking the focus: buttons, shortcuts, closing.
void commitTyping();

} // namespace workbench
