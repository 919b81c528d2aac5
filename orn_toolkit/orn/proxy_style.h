#pragma once

#include <QProxyStyle>

namespace orn {

// The application's style: the platform's, with tool-tip timing of our own and
// sliders that jump to a left click instead of paging towards it.
class proxy_style : public QProxyStyle
{
    Q_OBJECT

public:
    proxy_style();

    int styleHint(StyleHint hint, const QStyleOption* option = nullptr,
                  const QWidget* widget = nullptr,
                  QStyleHintReturn* return_data = nullptr) const override;

private:
    int tooltip_delay_ = 0;
    int tooltip_cooldown_ = 0;

public slots:
    void set_tooltip_delay(int delay) { tooltip_delay_ = delay; }
    void set_tooltip_cooldown(int delay) { tooltip_cooldown_ = delay; }
};

} // namespace orn
