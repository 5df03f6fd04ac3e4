#pragma once

#include "forms/elided_label.h"
#include "state/main_form.h"

/// The line below the bar: how a run goes, and how it went. It asks for the room that its words take, and is cut at its
/// end where there is less.
class Summary_Label : public Elided_Label
{
    Q_OBJECT

  public:
    explicit Summary_Label(QWidget* parent);

    /// The words take the colour of a warning or of a fault, in the palette that is in force now.
    void Set_Look(Summary_Look look);

    QSize sizeHint() const override;
};
