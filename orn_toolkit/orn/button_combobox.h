#pragma once

#include <QComboBox>

#include <functional>

namespace orn {

// The widget that a button_combobox shows and hides; made by the owner and placed
// in the window, below the button. It stands outside the button's class, where moc
// can give it a meta object, and the button names it combo_box_widget.
class button_combobox_popup : public QWidget
{
    Q_OBJECT

public:
    explicit button_combobox_popup(QWidget* parent = nullptr);
};

// A combo box that looks like whatever its paint callback draws and, instead of
// (or besides) its list, toggles a widget of its own below it.
class button_combobox : public QComboBox
{
    Q_OBJECT

public:
    using combo_box_widget = button_combobox_popup;

    explicit button_combobox(QWidget* parent = nullptr);

    void set_paint_callback(std::function<void(QPainter&)> callback);
    // The widget toggled by each popup; it goes into the button's window when first
    // shown, just below the button.
    void set_popup_widget(combo_box_widget* widget);
    combo_box_widget* popup_widget() const { return popup_widget_; }
    // The next popup does nothing: for a press that already closed the widget.
    void swallow_next_popup() { swallow_popup_ = true; }

    void showPopup() override;

signals:
    void clicked();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    std::function<void(QPainter&)> paint_callback_;
    bool swallow_popup_ = false;
    combo_box_widget* popup_widget_ = nullptr;
};

} // namespace orn
