#pragma once

#include <optional>

#include "ui/Printing.h"

class QWidget;

namespace kestrel {

/// Shows the offer as a whole page, with its paper, orientation and margins to choose, then the platform's
/// print dialog. Cancelling the print dialog leads back to the preview; nothing when the preview is closed.
std::optional<PrintOrder> ChoosePrinting(QWidget* parent, const PrintOffer& offer);

}  // namespace kestrel
