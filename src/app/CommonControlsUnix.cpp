#include "app/CommonControls.h"

namespace app
{

/// The toolkit brings all controls along.
bool initCommonControls()
{
    return true;
}

} // namespace app
