#include "db/SqliteProduct.h"

namespace db
{

/// The driver knows UTF-8 alone here. The driver manager would put texts into the process's
/// character set for it, and cut every character outside the Basic Multilingual Plane down to
/// single bytes; the narrow functions pass UTF-8 on untouched.
TextForm SqliteProduct::textForm() const
{
    return TextForm::Utf8;
}

} // namespace db
