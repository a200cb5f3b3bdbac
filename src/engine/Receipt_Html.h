#pragma once

#include "engine/Job_Receipt.h"
#include "records/Export_Writer.h"

#include <memory>

/// A receipt as a page of its own, in UTF-8: without scripts, and it fetches nothing. Whatever the texts hold is shown
/// as text. A value that Write_Export takes; any thread.
Export_Content Receipt_Html(std::shared_ptr<const Job_Receipt> receipt);
