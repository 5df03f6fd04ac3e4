#pragma once

class Slot_Guard;
class Startform;
struct Program;

/// The commands of the menu bar: which rule each calls, and which record its tick shows.

void Connect_Menus(Startform& form, Program& program, Slot_Guard& guard);
void Render_Menus(Startform& form, const Program& program);
