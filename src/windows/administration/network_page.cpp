#include "windows/administration/network_page.h"

#include <QLabel>

#include "platform/local_address.h"

namespace tallix {

NetworkPage::NetworkPage(Application& application, QWidget* parent) : SettingsPage(application, parent) {
    QFormLayout& listen = AddPanel("Listen Settings", OptionPanel::Listen);
    auto* address = new QLabel(QString::fromStdString(LocalAddress()));
    address->setObjectName("ListenIP");
    address->setTextInteractionFlags(Qt::TextSelectableByMouse);
    address->setAccessibleDescription("Listen IP:");  // a name would be read in place of the address
    listen.addRow("Listen IP:", address);
    AddCommandPanel(kCommandFiles[1]);
    AddPanel("Proxy Settings", OptionPanel::Proxy);
}

}  // namespace tallix
