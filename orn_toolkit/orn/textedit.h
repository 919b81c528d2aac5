#pragma once

#include <QTextEdit>

namespace orn {

// A dark text edit with the toolkit's slim scroll bars.
class textedit : public QTextEdit
{
    Q_OBJECT

public:
    explicit textedit(QWidget* parent = nullptr);
};

} // namespace orn
