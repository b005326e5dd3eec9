#include "app/EndSignal.h"

namespace app
{

struct EndSignal::Source {
};

EndSignal::EndSignal() = default;
EndSignal::~EndSignal() = default;

void EndSignal::serve(std::function<void()> end)
{
    static_cast<void>(end); // no signal comes
}

void EndSignal::stop() {}

} // namespace app
