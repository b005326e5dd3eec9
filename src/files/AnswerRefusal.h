#pragma once

#include "files/WholeFile.h"

namespace files
{

/// An answer that cannot be written in the chosen form: who asks must ask otherwise, or tell the
/// settings what is missing. Neither the database nor the file has failed.
class AnswerRefusal : public ExportError
{
public:
    using ExportError::ExportError;
};

} // namespace files
