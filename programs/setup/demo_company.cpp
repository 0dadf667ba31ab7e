#include "setup/demo_company.h"

namespace tallix {
namespace {

constexpr DemoSite kSites[] = {
    {"001",
     "Averley Moss Instruments - Northampton",
     "northampton@averleymoss.example",
     {"Averley Moss Instruments", "Unit 4, Larkfield Works", "Tanner's Row", "Northampton"},
     "NN4 0ZZ",
     "01604",
     "299",
     "10.20.1.10",
     "1752",
     "Mitel 3300",
     "1",
     201,
     28,
     24,
     {"622", "628", "635", "702"}},
    {"002",
     "Averley Moss Instruments - Lincoln",
     "lincoln@averleymoss.example",
     {"Averley Moss Instruments", "12 Foundry Yard", "", "Lincoln"},
     "LN2 0ZZ",
     "01522",
     "599",
     "10.20.2.10",
     "1752",
     "Samsung OfficeServ 7200",
     "2",
     501,
     17,
     12,
     {"522", "529", "537", "696"}},
    {"003",
     "Averley Moss Instruments - Exeter",
     "exeter@averleymoss.example",
     {"Averley Moss Instruments", "Quay Mill", "Salters Lane", "Exeter"},
     "EX1 0ZZ",
     "01392",
     "6099",
     "10.20.3.10",
     "1752",
     "Avaya V7",
     "3",
     6001,
     15,
     8,
     {"256", "427", "661", "758"}},
};

constexpr std::string_view kPeople[] = {
    "Reception Northampton", "Margaret Averley", "Thomas Moss",      "Priya Raman",       "Daniel Okafor",
    "Helen Whitcombe",       "Gareth Pryce",     "Zoë Hartley",      "Imran Siddiqui",    "Laura Fenn",
    "Peter Drysdale",        "Aoife O'Connell",  "Marcus Bell",      "Sunita Kaur",       "Robert Aldous",
    "Chloe Marchetti",       "Stephen Yarrow",   "Joanna Kowalczyk", "Dean Hollis",       "Emily Stroud",
    "Victor Nwosu",          "Kathryn Leigh",    "Simon Gatward",    "Fatima Rahmani",    "Oliver Penrose",
    "Grace Tillotson",       "Meeting Room 1",   "Warehouse Desk",   "Reception Lincoln", "Alan Thorne",
    "Beatrice Lund",         "Colin Maddox",     "Deepa Menon",      "Edward Sharrow",    "Frances Ingle",
    "George Batty",          "Hannah Voss",      "Ian Cullimore",    "Jürgen Adler",      "Karen Sleight",
    "Liam Rourke",           "Monika Bauer",     "Nigel Farrow",     "Workshop Lincoln",  "Loading Bay",
    "Reception Exeter",      "Olivia Trembath",  "Paul Nancarrow",   "Rachel Ede",        "Seán Byrne",
    "Tamsin Rowe",           "Usha Pillai",      "Vanessa Coombe",   "William Hext",      "Yusuf Demir",
    "André Lefèvre",         "Bryony Kellow",    "Callum Tregear",   "Service Desk",      "Meeting Room 2",
};

constexpr std::string_view kAccounts[] = {"1001", "1002", "1005", "1010", "1024", "1100",
                                          "1250", "2001", "2002", "2040", "3000", "7777"};

constexpr DemoContact kContacts[] = {
    {"Larkfield Joinery", NumberKind::National},         {"Brambleton Couriers", NumberKind::Special},
    {"Osgood & Pike Stationers", NumberKind::Freephone}, {"Dunmere Optical Glass", NumberKind::National},
    {"Tolland's Metalworks", NumberKind::National},      {"Farrowgate Accountants", NumberKind::National},
    {"Hexcombe Electronics", NumberKind::National},      {"Pellow Packaging", NumberKind::National},
    {"Kestrel Lane Surgery", NumberKind::National},      {"Marchetti Catering", NumberKind::Mobile},
    {"Stonebeck Solicitors", NumberKind::National},      {"Withybrook Travel", NumberKind::Special},
    {"Ravensmoor Calibration", NumberKind::National},    {"Ollerby Tool Hire", NumberKind::Freephone},
    {"Penhallick Freight", NumberKind::National},        {"Sallowfield Insurance", NumberKind::Freephone},
    {"Cobbold Print, Ltd", NumberKind::National},        {"Greylag Recruitment", NumberKind::National},
    {"Thistledown Cleaning", NumberKind::Mobile},        {"Amblecote Fasteners", NumberKind::National},
    {"Nightingale Hall School", NumberKind::National},   {"Vosper Lane Garage", NumberKind::National},
    {"Wraybridge Fire Safety", NumberKind::Special},     {"Ingleby Water Testing", NumberKind::National},
    {"Quarrendon Plastics", NumberKind::National},       {"Upwell Laboratories", NumberKind::National},
    {"Jessamy Design Studio", NumberKind::Mobile},       {"Lanyon Coatings", NumberKind::National},
    {"Atelier Beauséjour", NumberKind::International},   {"Müller Feinmechanik", NumberKind::International},
    {"Northover Bearings", NumberKind::National},        {"Yelland Software Support", NumberKind::Freephone},
    {"Duty Manager (mobile)", NumberKind::Mobile},       {"Managing Director (mobile)", NumberKind::Mobile},
    {"Field Engineer North", NumberKind::Mobile},        {"Field Engineer South", NumberKind::Mobile},
};

// Which extensions, by their place among all sixty, work in a group.
struct GroupRange {
    std::string_view name;
    int first;
    int last;
};

constexpr GroupRange kGroupRanges[] = {
    {"Management", 1, 3},
    {"Management", 29, 29},
    {"Management", 46, 46},
    {"Sales", 4, 11},
    {"Sales", 30, 34},
    {"Sales", 47, 49},
    {"Accounts", 12, 15},
    {"Engineering", 16, 22},
    {"Engineering", 35, 40},
    {"Customer Service", 23, 25},
    {"Customer Service", 50, 58},
    {"Warehouse", 27, 27},
    {"Warehouse", 41, 44},
    {"Switchboard", 0, 0},
    {"Switchboard", 28, 28},
    {"Switchboard", 45, 45},
};

}  // namespace

std::span<const DemoSite> DemoSites() {
    return kSites;
}

std::vector<DemoExtension> DemoExtensions() {
    std::vector<DemoExtension> extensions;
    for (std::size_t site = 0; site < std::size(kSites); ++site) {
        for (int i = 0; i < kSites[site].extensions; ++i) {
            const std::string_view name = kPeople[extensions.size()];
            extensions.push_back({std::to_string(kSites[site].firstExtension + i), name, site});
        }
    }
    return extensions;
}

std::vector<DemoGroup> DemoGroups() {
    std::vector<DemoGroup> groups;
    for (const GroupRange& range : kGroupRanges) {
        if (groups.empty() || groups.back().name != range.name) groups.push_back({range.name, {}});
        for (int member = range.first; member <= range.last; ++member)
            groups.back().members.push_back(member);
    }
    return groups;
}

std::span<const std::string_view> DemoAccounts() {
    return kAccounts;
}

std::span<const DemoContact> DemoContacts() {
    return kContacts;
}

}  // namespace tallix
