#pragma once

#include "engine/Job_Receipt.h"
#include "records/Export_Writer.h"

#include <memory>

/// A receipt as a text to read, in UTF-8: what is to be known of the job, its sums, then a few lines for each row. A
/// value that Write_Export takes; any thread.
Export_Content Receipt_Text(std::shared_ptr<const Job_Receipt> receipt);
