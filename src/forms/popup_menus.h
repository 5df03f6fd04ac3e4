#pragma once

class Slot_Guard;
class QWidget;
struct Program;

/// The popup menus behind a right click, or the menu key, on a control or its panel. A disabled control leaves the
/// click to its panel.
void Connect_Popups(QWidget& form, Program& program, Slot_Guard& guard);
