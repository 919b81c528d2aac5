#pragma once

#include <QApplication>
#include <QPointer>

namespace orn {

// The application object of a program with one main window. While the window is
// alive and visible it sees every event the application receives, after the
// application has handled it; it owns nothing but a guarded pointer to it.
template<typename W>
class application : public QApplication
{
public:
    application(int& argc, char** argv) : QApplication(argc, argv) {}

    QPointer<W> window;

    bool event(QEvent* event) override
    {
        const bool handled = QApplication::event(event);
        if (window && window->isVisible()) {
            // QWidget::event is protected; QObject's is public and dispatches the same way.
            return static_cast<QObject*>(window.data())->event(event);
        }
        return handled;
    }
};

} // namespace orn
