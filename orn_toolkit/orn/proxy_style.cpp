#include "orn/proxy_style.h"

#include <QApplication>

namespace orn {

proxy_style::proxy_style()
    : tooltip_delay_(QApplication::style()->styleHint(SH_ToolTip_WakeUpDelay)),
      tooltip_cooldown_(QApplication::style()->styleHint(SH_ToolTip_FallAsleepDelay))
{}

int proxy_style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* return_data) const
{
    switch (hint) {
    case SH_ToolTip_WakeUpDelay:
        return tooltip_delay_;
    case SH_ToolTip_FallAsleepDelay:
        return tooltip_cooldown_;
    case SH_Slider_AbsoluteSetButtons:
        return Qt::LeftButton;
    default:
        return QProxyStyle::styleHint(hint, option, widget, return_data);
    }
}

} // namespace orn
