#pragma once

#include <QString>

namespace orn {

// Every network interface of the machine with its hardware address, flags and
// addresses, three kinds of line:
//   Interface: eth0 (eth0) HW: 52:54:00:12:34:56
//   <tab>IsUp|IsRunning|CanBroadcast|CanMulticast
//   <tab>Address: 192.168.1.20/24
QString network_report();

} // namespace orn
