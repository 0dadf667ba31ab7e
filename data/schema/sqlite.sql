-- The tables of a SQLite file. A blank line ends a statement.
-- Texts compare byte for byte, trailing blanks included (BINARY, the default).
-- AUTOINCREMENT: the key of a deleted row is never given again, as on the servers.

-- One row a call. No column but the key is a number: dates are dd/mm/yyyy, times hh:mm:ss.
CREATE TABLE IF NOT EXISTS tblphonedata (
  ID INTEGER PRIMARY KEY AUTOINCREMENT,
  Date TEXT,
  Time TEXT,
  Duration TEXT,
  Extension TEXT,
  NumRings TEXT,
  OrigNum TEXT,
  DestNum TEXT,
  Internal TEXT,
  Error TEXT,
  Supervision TEXT,
  Speedcall TEXT,
  Forward TEXT,
  Trunk TEXT,
  Account TEXT,
  Site TEXT
);

CREATE INDEX IF NOT EXISTS tblphonedata_Extension ON tblphonedata (Extension);

CREATE INDEX IF NOT EXISTS tblphonedata_Account ON tblphonedata (Account);

CREATE INDEX IF NOT EXISTS tblphonedata_DestNum ON tblphonedata (DestNum);

CREATE INDEX IF NOT EXISTS tblphonedata_OrigNum ON tblphonedata (OrigNum);

CREATE INDEX IF NOT EXISTS tblphonedata_Site ON tblphonedata (Site);

-- The lines of the telephone systems as collected.
CREATE TABLE IF NOT EXISTS tblrawdata (
  Data TEXT,
  SiteID TEXT
);

CREATE INDEX IF NOT EXISTS tblrawdata_SiteID ON tblrawdata (SiteID);

-- Archived calls.
CREATE TABLE IF NOT EXISTS tblarchive (
  ID INTEGER PRIMARY KEY AUTOINCREMENT,
  Date TEXT,
  Time TEXT,
  Duration TEXT,
  Extension TEXT,
  NumRings TEXT,
  OrigNum TEXT,
  DestNum TEXT,
  Internal TEXT,
  Error TEXT,
  Supervision TEXT,
  Speedcall TEXT,
  Forward TEXT,
  Trunk TEXT,
  Account TEXT,
  Site TEXT
);

-- Who sits at which extension.
CREATE TABLE IF NOT EXISTS tblextensions (
  ExtensionNo TEXT PRIMARY KEY,
  Name TEXT
);

-- Extension groups.
CREATE TABLE IF NOT EXISTS tblgroupnames (
  ID INTEGER PRIMARY KEY AUTOINCREMENT,
  Name TEXT
);

CREATE INDEX IF NOT EXISTS tblgroupnames_Name ON tblgroupnames (Name);

-- Members of extension groups.
CREATE TABLE IF NOT EXISTS tblgroupmap (
  GroupID TEXT,
  Extension TEXT
);

CREATE INDEX IF NOT EXISTS tblgroupmap_GroupID ON tblgroupmap (GroupID);

CREATE INDEX IF NOT EXISTS tblgroupmap_Extension ON tblgroupmap (Extension);

-- Accounts. All but the two numbers is ciphertext of four digits a character.
CREATE TABLE IF NOT EXISTS tblusers (
  UserID INTEGER PRIMARY KEY AUTOINCREMENT,
  Username TEXT,
  Password TEXT,
  Email TEXT,
  AccessType TEXT,
  GroupID TEXT
);

CREATE INDEX IF NOT EXISTS tblusers_Username ON tblusers (Username);

-- Permission groups.
CREATE TABLE IF NOT EXISTS tblusergroups (
  GroupID INTEGER PRIMARY KEY AUTOINCREMENT,
  Group_Name TEXT,
  Group_Access TEXT
);

CREATE INDEX IF NOT EXISTS tblusergroups_Group_Name ON tblusergroups (Group_Name);

-- The access log.
CREATE TABLE IF NOT EXISTS tbllogging (
  Date TEXT,
  Time TEXT,
  User TEXT,
  Data TEXT
);

-- Sites, each a telephone system. The first one is the default.
CREATE TABLE IF NOT EXISTS tblsite (
  ID TEXT PRIMARY KEY,
  Name TEXT,
  Email TEXT,
  Addy1 TEXT,
  Addy2 TEXT,
  Addy3 TEXT,
  Addy4 TEXT,
  Postcode TEXT,
  Area TEXT,
  VM TEXT,
  SwitchIP TEXT,
  SwitchPort TEXT,
  SwitchMapping TEXT,
  SystemCode TEXT,
  "3PTName" TEXT,
  "3PTUser" TEXT,
  "3PTPass" TEXT,
  "3PTDatabase" TEXT
);

-- The telephone system itself. The spelling of Manafacturer is the column's name.
CREATE TABLE IF NOT EXISTS tblphonesystem (
  SystemID TEXT,
  Manafacturer TEXT,
  Model TEXT,
  IP TEXT,
  Port TEXT,
  Username TEXT,
  Password TEXT,
  VMNumber TEXT
);

-- Where each field starts and finishes in a raw line.
CREATE TABLE IF NOT EXISTS tblphonemapping (
  Mapping_Name TEXT PRIMARY KEY,
  DateST TEXT,
  DateFN TEXT,
  TimeST TEXT,
  TimeFN TEXT,
  DurationST TEXT,
  DurationFN TEXT,
  ExtensionST TEXT,
  ExtensionFN TEXT,
  DialledST TEXT,
  DialledFN TEXT,
  NumRingsST TEXT,
  NumRingsFN TEXT,
  OrigNumST TEXT,
  OrigNumFN TEXT,
  DestNumST TEXT,
  DestNumFN TEXT,
  InternalST TEXT,
  InternalFN TEXT,
  ErrorST TEXT,
  ErrorFN TEXT,
  SupervisionST TEXT,
  SupervisionFN TEXT,
  SpeedcallST TEXT,
  SpeedcallFN TEXT,
  ForwardST TEXT,
  ForwardFN TEXT,
  TrunkST TEXT,
  TrunkFN TEXT,
  AccountST TEXT,
  AccountFN TEXT
);

-- The tariff: a prefix, or the word Default, and its cost.
CREATE TABLE IF NOT EXISTS tblcosts (
  Number TEXT,
  Cost TEXT,
  CostID TEXT
);

CREATE INDEX IF NOT EXISTS tblcosts_Number ON tblcosts (Number);

-- Carriers and their packages.
CREATE TABLE IF NOT EXISTS tblcostmap (
  Carrier TEXT,
  Package TEXT,
  CostID TEXT
);

-- The computed cost of a call.
CREATE TABLE IF NOT EXISTS tblcostcount (
  DataID INTEGER PRIMARY KEY,
  Cost TEXT
);

-- Known numbers. A number may stand twice: an import checks nothing.
CREATE TABLE IF NOT EXISTS tbladdressbook (
  Name TEXT,
  Number TEXT
);

CREATE INDEX IF NOT EXISTS tbladdressbook_Number ON tbladdressbook (Number);

-- Area codes. Reports read the name as Provider, which is always the Area.
CREATE TABLE IF NOT EXISTS tblareaproviders (
  Code TEXT,
  Area TEXT,
  Provider TEXT GENERATED ALWAYS AS (Area) VIRTUAL
);

CREATE INDEX IF NOT EXISTS tblareaproviders_Code ON tblareaproviders (Code);

-- Mobile and carrier number ranges.
CREATE TABLE IF NOT EXISTS tblcommproviders (
  Code TEXT,
  Provider TEXT
);

CREATE INDEX IF NOT EXISTS tblcommproviders_Code ON tblcommproviders (Code);

-- International dialling codes.
CREATE TABLE IF NOT EXISTS tblintcodes (
  Code TEXT,
  Country TEXT
);

CREATE INDEX IF NOT EXISTS tblintcodes_Code ON tblintcodes (Code);
