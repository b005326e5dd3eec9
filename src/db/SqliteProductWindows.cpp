#include "db/SqliteProduct.h"

namespace db
{

/// The driver has the system's wide functions.
TextForm SqliteProduct::textForm() const
{
    return TextForm::Utf16;
}

} // namespace db
