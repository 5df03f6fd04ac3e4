#pragma once

#include <QString>
#include <map>

class Program_Dialog;
class QWidget;
class Slot_Guard;
struct Program;

using Form_Maker = Program_Dialog* (*)(Program&, Slot_Guard&, QWidget* owner);

/// Every form beside the main one by its name ("frm_CustomFilter") with what makes it. A new form is a new row.
const std::map<QString, Form_Maker>& Form_Makers();
