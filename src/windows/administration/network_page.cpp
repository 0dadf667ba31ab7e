#include "windows/administration/network_page.h"

#include <QLabel>

#include "platform/local_address.h"

namespace tallix {

NetworkPage::NetworkPage(Application& application, QWidget* parent) : SettingsPage(application, parent) {
    QFormLayout& listen = AddPanel("Listen Settings");
    for (const char* key : {"ListenFeed", "ListenPort"}) AddSetting(listen, key);
    auto* address = new QLabel(QString::fromStdString(LocalAddress()));
    address->setObjectName("ListenIP");
    address->setTextInteractionFlags(Qt::TextSelectableByMouse);
    address->setAccessibleDescription("Listen IP:");  // a name would be read in place of the address
    listen.addRow("Listen IP:", address);
    AddCommandPanel(kCommandFiles[1]);
    QFormLayout& proxy = AddPanel("Proxy Settings");
    for (const char* key : {"UseProxy", "ProxyIP", "ProxyPort"}) AddSetting(proxy, key);
}

}  // namespace tallix
