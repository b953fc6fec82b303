#include "station.h"

#include <iostream>
#include <thread>

int main()
{
    const auto sleep = [](std::chrono::milliseconds duration) { std::this_thread::sleep_for(duration); };
    const bool connected = JoinBestNetwork(*CWirelessManage::Get(), std::cout, sleep);
    CWirelessManage::Delete();
    return connected ? 0 : 1;
}
