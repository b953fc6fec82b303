#pragma once

#include <calvix/wireless_manage.h>

#include <chrono>
#include <functional>
#include <ostream>

// How the host waits: a program sleeps, a test moves the simulated time.
using Pause = std::function<void(std::chrono::milliseconds)>;

// Lists the access points of stored networks, joins the best network and waits until the connection stands. Says in `out`
// what happens; false when there is no connection in the end.
bool JoinBestNetwork(CWirelessManage& manager, std::ostream& out, const Pause& pause);
