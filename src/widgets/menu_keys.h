#pragma once

class QKeyEvent;
class QWidget;

namespace kov {

/// Whether a key press is text or moves within a text. Everything else with Ctrl, Alt or Meta belongs to the
/// menus: Qt's text widgets would take Ctrl+X, Ctrl+A, Ctrl+Y and others before a menu sees them.
bool is_editing_key(const QKeyEvent& event);

/// Leaves all keys but the editing ones to the menus while this text widget has the focus.
void give_keys_to_menus(QWidget& text_widget);

}  // namespace kov
