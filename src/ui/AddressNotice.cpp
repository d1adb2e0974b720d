#include "ui/AddressNotice.h"

#include <QPointer>

#include "ui/Platform.h"

namespace kestrel {

AddressNotice::AddressNotice(QWidget* parent) : QLabel(parent) {
  setObjectName("lblAddress");
  setTextFormat(Qt::PlainText);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setWordWrap(true);
  setMargin(fontMetrics().height() / 2);
  hide();
}

void AddressNotice::Open(Platform& system, const QString& address) {
  hide();
  // The answer may come when the window has been closed.
  system.OpenAddress(address, [notice = QPointer<AddressNotice>(this), address] {
    if (!notice) return;
    notice->setText("No program on this computer opens web addresses. This one is " + address);
    notice->show();
  });
}

}  // namespace kestrel
