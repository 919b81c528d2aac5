// The core logs freely; under a fuzzer that would only slow every run down.

#include "fuzz_target.h"

#include <QtGlobal>

namespace {

void drop_message(QtMsgType, const QMessageLogContext&, const QString&) {}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    qInstallMessageHandler(drop_message);
    return 0;
}
