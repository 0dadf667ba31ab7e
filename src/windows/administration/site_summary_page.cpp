#include "windows/administration/site_summary_page.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "administration/sites.h"
#include "session/access_rights.h"
#include "toolkit/form_names.h"
#include "toolkit/style.h"

namespace tallix {
namespace {

constexpr char kPurpose[] =
    "Tallix supports a multi-site configuration.     To configure multiple sites (or just a single site) "
    "Please click the button below:";

}  // namespace

SiteSummaryPage::SiteSummaryPage(Application& application, QWidget* parent)
    : OptionsPage(parent), application_(application), count_(new QLabel) {
    auto* purpose = new QLabel(kPurpose);
    purpose->setWordWrap(true);
    auto* configure = new QPushButton("Configure Sites");
    connect(configure, &QPushButton::clicked, this, [this] { emit WindowWanted(kSitesForm); });
    count_->setObjectName("SiteCount");
    auto* counted = new QHBoxLayout;
    counted->setSpacing(toolkit::kSpacing);
    counted->addWidget(new QLabel("Currently Configured Sites:"));
    counted->addWidget(count_, 1);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(2 * toolkit::kSpacing);
    rows->addWidget(purpose);
    rows->addLayout(counted);
    rows->addWidget(configure, 0, Qt::AlignLeft);
    rows->addStretch();
}

void SiteSummaryPage::Load() {
    count_->setText(QString::number(CountSites(application_.session)));
}

void SiteSummaryPage::showEvent(QShowEvent*) {
    Load();
}

bool SiteSummaryPage::IsGranted(const AccessRights& access) const {
    return Allows(access, AccessRight::SiteData);
}

}  // namespace tallix
