#pragma once

#include "forms/test_window.h"

#include <QApplication>
#include <QMessageBox>

/// A window whose forms a test opens and works in.
struct Form_Test : testing::Test
{
    Test_Window Window;

    Form_Test()
    {
        // What answers forms is busy with the form while a box stands over it.
        QObject::connect(&boxes_, &QTimer::timeout, &boxes_, [this] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box || !box->isVisible() || !box->button(QMessageBox::Ok))
                return;
            Window.Person.Boxes.push_back({box->windowTitle(), box->text()});
            box->button(QMessageBox::Ok)->click();
        });
        boxes_.start(10);
    }

    template <typename Widget = QAbstractButton>
    static Widget& In(QWidget& form, const char* name)
    {
        auto* widget = form.findChild<Widget*>(QLatin1StringView(name));
        if (!widget)
            qFatal("There is no %s", name);
        return *widget;
    }

    static void Push(QWidget& form, const char* name) { Click_On(In(form, name)); }

    /// Chooses the menu item or clicks the button; `person` is what is done in the form that it opens.
    void Open(const char* command, const char* form, const std::function<void(QWidget&)>& person)
    {
        bool met = false;
        Window.Person.On_Form[QLatin1StringView(form)] = [&](QWidget& widget) {
            met = true;
            person(widget);
        };
        if (QLatin1StringView(command).startsWith(QLatin1StringView("btn_")))
            Click_On(Window.Get(command));
        else
            Window.Choose(command);
        Window.Person.On_Form.erase(QLatin1StringView(form));
        EXPECT_TRUE(met) << form;
    }

  private:
    QTimer boxes_;
};
