#pragma once

/// A form as its owner sees it: something that brings its controls in step with the records.
class Form_View
{
  public:
    virtual ~Form_View() = default;

    virtual void Render() = 0;
};
