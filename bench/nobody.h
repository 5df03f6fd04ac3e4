#pragma once

#include "support/operator.h"

/// Nobody is in front: every question is answered with nothing.
class Nobody : public Operator
{
  public:
    Message_Answer Show_Message(const Message_Box&) override { return Message_Answer::Ok; }

    void Show_Modal(const QString&) override {}

    void Show_Form(const QString&) override {}

    QString Pick_Folder(const QString&, const QString&) override { return {}; }

    QStringList Pick_File(const File_Question&) override { return {}; }

    void Pump_Events() override {}

    void Wait_With_Events(int) override {}

    bool Open_Document(const QString&) override { return false; }
};
