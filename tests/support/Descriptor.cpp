#include "support/Descriptor.h"

#include <unistd.h>

namespace test
{

Descriptor::~Descriptor()
{
    close(m_number);
}

} // namespace test
