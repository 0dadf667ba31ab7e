-- The tables of a MariaDB or MySQL database. A blank line ends a statement.
-- utf8mb4_nopad_bin compares byte for byte, trailing blanks included; where the server
-- is MySQL its counterpart utf8mb4_0900_bin stands in its place.
-- Text keys are UNIQUE, not PRIMARY KEY: rows then lie in the order in which they were
-- added, as on the other servers, and not in the order of the key.
-- Columns are wide enough that nothing is ever cut.

-- One row a call. No column but the key is a number: dates are dd/mm/yyyy, times hh:mm:ss.
CREATE TABLE IF NOT EXISTS tblphonedata (
  ID INT NOT NULL AUTO_INCREMENT PRIMARY KEY,
  Date VARCHAR(255),
  Time VARCHAR(255),
  Duration VARCHAR(255),
  Extension VARCHAR(255),
  NumRings VARCHAR(255),
  OrigNum VARCHAR(255),
  DestNum VARCHAR(255),
  Internal VARCHAR(255),
  Error VARCHAR(255),
  Supervision VARCHAR(255),
  Speedcall VARCHAR(255),
  Forward VARCHAR(255),
  Trunk VARCHAR(255),
  Account VARCHAR(255),
  Site VARCHAR(255)
) CHARACTER SET utf8mb4 COLLATE utf8mb4_nopad_bin;

CREATE INDEX IF NOT EXISTS tblphonedata_Extension ON tblphonedata (Extension);

CREATE INDEX IF NOT EXISTS tblphonedata_Account ON tblphonedata (Account);

CREATE INDEX IF NOT EXISTS tblphonedata_DestNum ON tblphonedata (DestNum);

CREATE INDEX IF NOT EXISTS tblphonedata_OrigNum ON tblphonedata (OrigNum);

CREATE INDEX IF NOT EXISTS tblphonedata_Site ON tblphonedata (Site);

-- The lines of the telephone systems as collected.
CREATE TABLE IF NOT EXISTS tblrawdata (
  Data MEDIUMTEXT,
  SiteID VARCHAR(255)
) CHARACTER SET utf8mb4 COLLATE utf8mb4_nopad_bin;

CREATE INDEX IF NOT EXISTS tblrawdata_SiteID ON tblrawdata (SiteID);

-- Archived calls.
CREATE TABLE IF NOT EXISTS tblarchive (
  ID INT NOT NULL AUTO_INCREMENT PRIMARY KEY,
  Date VARCHAR(255),
  Time VARCHAR(255),
  Duration VARCHAR(255),
  Extension VARCHAR(255),
  NumRings VARCHAR(255),
  OrigNum VARCHAR(255),
  DestNum VARCHAR(255),
  Internal VARCHAR(255),
  Error VARCHAR(255),
  Supervision VARCHAR(255),
  Speedcall VARCHAR(255),
  Forward VARCHAR(255),
  Trunk VARCHAR(255),
  Account VARCHAR(255),
  Site VARCHAR(255)
) CHARACTER SET utf8mb4 COLLATE utf8mb4_nopad_bin;

-- Who sits at which extension.
CREATE TABLE IF NOT EXISTS tblextensions (
  ExtensionNo VARCHAR(255) UNIQUE,
  Name VARCHAR(255)
) CHARACTER SET utf8mb4 COLLATE utf8mb4_nopad_bin;

-- Extension groups.
CREATE TABLE IF NOT EXISTS tblgroupnames (
  ID INT NOT NULL AUTO_INCREMENT PRIMARY KEY,
  Name VARCHAR(255)
) CHARACTER SET utf8mb4 COLLATE utf8mb4_nopad_bin;

-- An index over whole names would hold the whole table, and a list of all groups would
-- then come by name and not in the order of their keys.
CREATE INDEX IF NOT EXISTS tblgroupnames_Name ON tblgroupnames (Name(64));

-- Members of extension groups.
CREATE TABLE IF NOT EXISTS tblgroupmap (
  GroupID VARCHAR(255),
  Extension VARCHAR(255)
) CHARACTER SET utf8mb4 COLLATE utf8mb4_nopad_bin;

CREATE INDEX IF NOT EXISTS tblgroupmap_GroupID ON tblgroupmap (GroupID);

CREATE INDEX IF NOT EXISTS tblgroupmap_Extension ON tblgroupmap (Extension);

-- Accounts. All but the two numbers is ciphertext of four digits a character.
CREATE TABLE IF NOT EXISTS tblusers (
  UserID INT NOT NULL AUTO_INCREMENT PRIMARY KEY,
  Username VARCHAR(512),
  Password VARCHAR(2048),
  Email VARCHAR(2048),
  AccessType VARCHAR(2048),
  GroupID VARCHAR(255)
) CHARACTER SET utf8mb4 COLLATE utf8mb4_nopad_bin;

CREATE INDEX IF NOT EXISTS tblusers_Username ON tblusers (Username);

-- Permission groups.
CREATE TABLE IF NOT EXISTS tblusergroups (
  GroupID INT NOT NULL AUTO_INCREMENT PRIMARY KEY,
  Group_Name VARCHAR(255),
  Group_Access VARCHAR(2048)
) CHARACTER SET utf8mb4 COLLATE utf8mb4_nopad_bin;

CREATE INDEX IF NOT EXISTS tblusergroups_Group_Name ON tblusergroups (Group_Name);

-- The access log.
CREATE TABLE IF NOT EXISTS tbllogging (
  Date VARCHAR(255),
  Time VARCHAR(255),
  User VARCHAR(255),
  Data MEDIUMTEXT
) CHARACTER SET utf8mb4 COLLATE utf8mb4_nopad_bin;

-- Sites, each a telephone system. The first one is the default.
CREATE TABLE IF NOT EXISTS tblsite (
  ID VARCHAR(255) UNIQUE,
  Name VARCHAR(255),
  Email VARCHAR(255),
  Addy1 VARCHAR(255),
  Addy2 VARCHAR(255),
  Addy3 VARCHAR(255),
  Addy4 VARCHAR(255),
  Postcode VARCHAR(255),
  Area VARCHAR(255),
  VM VARCHAR(255),
  SwitchIP VARCHAR(255),
  SwitchPort VARCHAR(255),
  SwitchMapping VARCHAR(255),
  SystemCode VARCHAR(255),
  `3PTName` VARCHAR(255),
  `3PTUser` VARCHAR(255),
  `3PTPass` VARCHAR(255),
  `3PTDatabase` VARCHAR(255)
) CHARACTER SET utf8mb4 COLLATE utf8mb4_nopad_bin;

-- The telephone system itself. The spelling of Manafacturer is the column's name.
CREATE TABLE IF NOT EXISTS tblphonesystem (
  SystemID VARCHAR(255),
  Manafacturer VARCHAR(255),
  Model VARCHAR(255),
  IP VARCHAR(255),
  Port VARCHAR(255),
  Username VARCHAR(255),
  Password VARCHAR(255),
  VMNumber VARCHAR(255)
) CHARACTER SET utf8mb4 COLLATE utf8mb4_nopad_bin;

-- Where each field starts and finishes in a raw line.
CREATE TABLE IF NOT EXISTS tblphonemapping (
  Mapping_Name VARCHAR(255) UNIQUE,
  DateST VARCHAR(255),
  DateFN VARCHAR(255),
  TimeST VARCHAR(255),
  TimeFN VARCHAR(255),
  DurationST VARCHAR(255),
  DurationFN VARCHAR(255),
  ExtensionST VARCHAR(255),
  ExtensionFN VARCHAR(255),
  DialledST VARCHAR(255),
  DialledFN VARCHAR(255),
  NumRingsST VARCHAR(255),
  NumRingsFN VARCHAR(255),
  OrigNumST VARCHAR(255),
  OrigNumFN VARCHAR(255),
  DestNumST VARCHAR(255),
  DestNumFN VARCHAR(255),
  InternalST VARCHAR(255),
  InternalFN VARCHAR(255),
  ErrorST VARCHAR(255),
  ErrorFN VARCHAR(255),
  SupervisionST VARCHAR(255),
  SupervisionFN VARCHAR(255),
  SpeedcallST VARCHAR(255),
  SpeedcallFN VARCHAR(255),
  ForwardST VARCHAR(255),
  ForwardFN VARCHAR(255),
  TrunkST VARCHAR(255),
  TrunkFN VARCHAR(255),
  AccountST VARCHAR(255),
  AccountFN VARCHAR(255)
) CHARACTER SET utf8mb4 COLLATE utf8mb4_nopad_bin;

-- The tariff: a prefix, or the word Default, and its cost.
CREATE TABLE IF NOT EXISTS tblcosts (
  Number VARCHAR(255),
  Cost VARCHAR(255),
  CostID VARCHAR(255)
) CHARACTER SET utf8mb4 COLLATE utf8mb4_nopad_bin;

CREATE INDEX IF NOT EXISTS tblcosts_Number ON tblcosts (Number);

-- Carriers and their packages.
CREATE TABLE IF NOT EXISTS tblcostmap (
  Carrier VARCHAR(255),
  Package VARCHAR(255),
  CostID VARCHAR(255)
) CHARACTER SET utf8mb4 COLLATE utf8mb4_nopad_bin;

-- The computed cost of a call.
CREATE TABLE IF NOT EXISTS tblcostcount (
  DataID INT NOT NULL PRIMARY KEY,
  Cost VARCHAR(255)
) CHARACTER SET utf8mb4 COLLATE utf8mb4_nopad_bin;

-- Known numbers. A number may stand twice: an import checks nothing.
CREATE TABLE IF NOT EXISTS tbladdressbook (
  Name VARCHAR(255),
  Number VARCHAR(255)
) CHARACTER SET utf8mb4 COLLATE utf8mb4_nopad_bin;

CREATE INDEX IF NOT EXISTS tbladdressbook_Number ON tbladdressbook (Number);

-- Area codes. Reports read the name as Provider, which is always the Area.
CREATE TABLE IF NOT EXISTS tblareaproviders (
  Code VARCHAR(255),
  Area VARCHAR(255),
  Provider VARCHAR(255) AS (Area) STORED
) CHARACTER SET utf8mb4 COLLATE utf8mb4_nopad_bin;

CREATE INDEX IF NOT EXISTS tblareaproviders_Code ON tblareaproviders (Code);

-- Mobile and carrier number ranges.
CREATE TABLE IF NOT EXISTS tblcommproviders (
  Code VARCHAR(255),
  Provider VARCHAR(255)
) CHARACTER SET utf8mb4 COLLATE utf8mb4_nopad_bin;

CREATE INDEX IF NOT EXISTS tblcommproviders_Code ON tblcommproviders (Code);

-- International dialling codes.
CREATE TABLE IF NOT EXISTS tblintcodes (
  Code VARCHAR(255),
  Country VARCHAR(255)
) CHARACTER SET utf8mb4 COLLATE utf8mb4_nopad_bin;

CREATE INDEX IF NOT EXISTS tblintcodes_Code ON tblintcodes (Code);
