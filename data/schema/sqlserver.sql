-- The tables of a SQL Server database. A blank line ends a statement.
-- Texts compare byte for byte (BIN2), but this server disregards trailing blanks.

-- Restored accounts bring their own UserID, which an identity column would refuse.
IF OBJECT_ID('dbo.NextUserID') IS NULL
  EXEC('CREATE FUNCTION dbo.NextUserID() RETURNS INT AS BEGIN RETURN 1 END');

-- One row a call. No column but the key is a number: dates are dd/mm/yyyy, times hh:mm:ss.
IF OBJECT_ID('tblphonedata', 'U') IS NULL CREATE TABLE tblphonedata (
  [ID] INT IDENTITY(1,1) PRIMARY KEY,
  [Date] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Time] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Duration] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Extension] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [NumRings] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [OrigNum] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [DestNum] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Internal] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Error] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Supervision] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Speedcall] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Forward] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Trunk] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Account] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Site] NVARCHAR(255) COLLATE Latin1_General_100_BIN2
);

IF INDEXPROPERTY(OBJECT_ID('tblphonedata'), 'tblphonedata_Extension', 'IndexID') IS NULL
  CREATE INDEX tblphonedata_Extension ON tblphonedata ([Extension]);

IF INDEXPROPERTY(OBJECT_ID('tblphonedata'), 'tblphonedata_Account', 'IndexID') IS NULL
  CREATE INDEX tblphonedata_Account ON tblphonedata ([Account]);

IF INDEXPROPERTY(OBJECT_ID('tblphonedata'), 'tblphonedata_DestNum', 'IndexID') IS NULL
  CREATE INDEX tblphonedata_DestNum ON tblphonedata ([DestNum]);

IF INDEXPROPERTY(OBJECT_ID('tblphonedata'), 'tblphonedata_OrigNum', 'IndexID') IS NULL
  CREATE INDEX tblphonedata_OrigNum ON tblphonedata ([OrigNum]);

IF INDEXPROPERTY(OBJECT_ID('tblphonedata'), 'tblphonedata_Site', 'IndexID') IS NULL
  CREATE INDEX tblphonedata_Site ON tblphonedata ([Site]);

-- The lines of the telephone systems as collected.
IF OBJECT_ID('tblrawdata', 'U') IS NULL CREATE TABLE tblrawdata (
  [Data] NVARCHAR(MAX) COLLATE Latin1_General_100_BIN2,
  [SiteID] NVARCHAR(255) COLLATE Latin1_General_100_BIN2
);

IF INDEXPROPERTY(OBJECT_ID('tblrawdata'), 'tblrawdata_SiteID', 'IndexID') IS NULL
  CREATE INDEX tblrawdata_SiteID ON tblrawdata ([SiteID]);

-- Archived calls.
IF OBJECT_ID('tblarchive', 'U') IS NULL CREATE TABLE tblarchive (
  [ID] INT IDENTITY(1,1) PRIMARY KEY,
  [Date] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Time] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Duration] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Extension] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [NumRings] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [OrigNum] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [DestNum] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Internal] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Error] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Supervision] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Speedcall] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Forward] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Trunk] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Account] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Site] NVARCHAR(255) COLLATE Latin1_General_100_BIN2
);

-- Who sits at which extension.
IF OBJECT_ID('tblextensions', 'U') IS NULL CREATE TABLE tblextensions (
  [ExtensionNo] NVARCHAR(255) COLLATE Latin1_General_100_BIN2 NOT NULL PRIMARY KEY,
  [Name] NVARCHAR(255) COLLATE Latin1_General_100_BIN2
);

-- Extension groups.
IF OBJECT_ID('tblgroupnames', 'U') IS NULL CREATE TABLE tblgroupnames (
  [ID] INT IDENTITY(1,1) PRIMARY KEY,
  [Name] NVARCHAR(255) COLLATE Latin1_General_100_BIN2
);

IF INDEXPROPERTY(OBJECT_ID('tblgroupnames'), 'tblgroupnames_Name', 'IndexID') IS NULL
  CREATE INDEX tblgroupnames_Name ON tblgroupnames ([Name]);

-- Members of extension groups.
IF OBJECT_ID('tblgroupmap', 'U') IS NULL CREATE TABLE tblgroupmap (
  [GroupID] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Extension] NVARCHAR(255) COLLATE Latin1_General_100_BIN2
);

IF INDEXPROPERTY(OBJECT_ID('tblgroupmap'), 'tblgroupmap_GroupID', 'IndexID') IS NULL
  CREATE INDEX tblgroupmap_GroupID ON tblgroupmap ([GroupID]);

IF INDEXPROPERTY(OBJECT_ID('tblgroupmap'), 'tblgroupmap_Extension', 'IndexID') IS NULL
  CREATE INDEX tblgroupmap_Extension ON tblgroupmap ([Extension]);

-- Accounts. All but the two numbers is ciphertext of four digits a character.
IF OBJECT_ID('tblusers', 'U') IS NULL CREATE TABLE tblusers (
  [UserID] INT NOT NULL CONSTRAINT tblusers_key PRIMARY KEY DEFAULT dbo.NextUserID(),
  [Username] NVARCHAR(512) COLLATE Latin1_General_100_BIN2,
  [Password] NVARCHAR(2048) COLLATE Latin1_General_100_BIN2,
  [Email] NVARCHAR(2048) COLLATE Latin1_General_100_BIN2,
  [AccessType] NVARCHAR(2048) COLLATE Latin1_General_100_BIN2,
  [GroupID] NVARCHAR(255) COLLATE Latin1_General_100_BIN2
);

IF INDEXPROPERTY(OBJECT_ID('tblusers'), 'tblusers_Username', 'IndexID') IS NULL
  CREATE INDEX tblusers_Username ON tblusers ([Username]);

ALTER FUNCTION dbo.NextUserID() RETURNS INT AS
BEGIN
  RETURN (SELECT COALESCE(MAX(UserID), 0) + 1 FROM dbo.tblusers)
END;

-- Permission groups.
IF OBJECT_ID('tblusergroups', 'U') IS NULL CREATE TABLE tblusergroups (
  [GroupID] INT IDENTITY(1,1) PRIMARY KEY,
  [Group_Name] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Group_Access] NVARCHAR(2048) COLLATE Latin1_General_100_BIN2
);

IF INDEXPROPERTY(OBJECT_ID('tblusergroups'), 'tblusergroups_Group_Name', 'IndexID') IS NULL
  CREATE INDEX tblusergroups_Group_Name ON tblusergroups ([Group_Name]);

-- The access log.
IF OBJECT_ID('tbllogging', 'U') IS NULL CREATE TABLE tbllogging (
  [Date] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Time] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [User] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Data] NVARCHAR(MAX) COLLATE Latin1_General_100_BIN2
);

-- Sites, each a telephone system. The first one is the default.
IF OBJECT_ID('tblsite', 'U') IS NULL CREATE TABLE tblsite (
  [ID] NVARCHAR(255) COLLATE Latin1_General_100_BIN2 NOT NULL PRIMARY KEY,
  [Name] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Email] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Addy1] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Addy2] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Addy3] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Addy4] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Postcode] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Area] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [VM] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [SwitchIP] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [SwitchPort] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [SwitchMapping] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [SystemCode] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [3PTName] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [3PTUser] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [3PTPass] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [3PTDatabase] NVARCHAR(255) COLLATE Latin1_General_100_BIN2
);

-- The telephone system itself. The spelling of Manafacturer is the column's name.
IF OBJECT_ID('tblphonesystem', 'U') IS NULL CREATE TABLE tblphonesystem (
  [SystemID] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Manafacturer] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Model] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [IP] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Port] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Username] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Password] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [VMNumber] NVARCHAR(255) COLLATE Latin1_General_100_BIN2
);

-- Where each field starts and finishes in a raw line.
IF OBJECT_ID('tblphonemapping', 'U') IS NULL CREATE TABLE tblphonemapping (
  [Mapping_Name] NVARCHAR(255) COLLATE Latin1_General_100_BIN2 NOT NULL PRIMARY KEY,
  [DateST] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [DateFN] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [TimeST] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [TimeFN] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [DurationST] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [DurationFN] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [ExtensionST] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [ExtensionFN] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [DialledST] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [DialledFN] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [NumRingsST] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [NumRingsFN] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [OrigNumST] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [OrigNumFN] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [DestNumST] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [DestNumFN] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [InternalST] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [InternalFN] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [ErrorST] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [ErrorFN] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [SupervisionST] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [SupervisionFN] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [SpeedcallST] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [SpeedcallFN] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [ForwardST] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [ForwardFN] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [TrunkST] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [TrunkFN] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [AccountST] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [AccountFN] NVARCHAR(255) COLLATE Latin1_General_100_BIN2
);

-- The tariff: a prefix, or the word Default, and its cost.
IF OBJECT_ID('tblcosts', 'U') IS NULL CREATE TABLE tblcosts (
  [Number] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Cost] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [CostID] NVARCHAR(255) COLLATE Latin1_General_100_BIN2
);

IF INDEXPROPERTY(OBJECT_ID('tblcosts'), 'tblcosts_Number', 'IndexID') IS NULL
  CREATE INDEX tblcosts_Number ON tblcosts ([Number]);

-- Carriers and their packages.
IF OBJECT_ID('tblcostmap', 'U') IS NULL CREATE TABLE tblcostmap (
  [Carrier] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Package] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [CostID] NVARCHAR(255) COLLATE Latin1_General_100_BIN2
);

-- The computed cost of a call.
IF OBJECT_ID('tblcostcount', 'U') IS NULL CREATE TABLE tblcostcount (
  [DataID] INT NOT NULL PRIMARY KEY,
  [Cost] NVARCHAR(255) COLLATE Latin1_General_100_BIN2
);

-- Known numbers. A number may stand twice: an import checks nothing.
IF OBJECT_ID('tbladdressbook', 'U') IS NULL CREATE TABLE tbladdressbook (
  [Name] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Number] NVARCHAR(255) COLLATE Latin1_General_100_BIN2
);

IF INDEXPROPERTY(OBJECT_ID('tbladdressbook'), 'tbladdressbook_Number', 'IndexID') IS NULL
  CREATE INDEX tbladdressbook_Number ON tbladdressbook ([Number]);

-- Area codes. Reports read the name as Provider, which is always the Area.
IF OBJECT_ID('tblareaproviders', 'U') IS NULL CREATE TABLE tblareaproviders (
  [Code] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Area] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Provider] AS [Area]
);

IF INDEXPROPERTY(OBJECT_ID('tblareaproviders'), 'tblareaproviders_Code', 'IndexID') IS NULL
  CREATE INDEX tblareaproviders_Code ON tblareaproviders ([Code]);

-- Mobile and carrier number ranges.
IF OBJECT_ID('tblcommproviders', 'U') IS NULL CREATE TABLE tblcommproviders (
  [Code] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Provider] NVARCHAR(255) COLLATE Latin1_General_100_BIN2
);

IF INDEXPROPERTY(OBJECT_ID('tblcommproviders'), 'tblcommproviders_Code', 'IndexID') IS NULL
  CREATE INDEX tblcommproviders_Code ON tblcommproviders ([Code]);

-- International dialling codes.
IF OBJECT_ID('tblintcodes', 'U') IS NULL CREATE TABLE tblintcodes (
  [Code] NVARCHAR(255) COLLATE Latin1_General_100_BIN2,
  [Country] NVARCHAR(255) COLLATE Latin1_General_100_BIN2
);

IF INDEXPROPERTY(OBJECT_ID('tblintcodes'), 'tblintcodes_Code', 'IndexID') IS NULL
  CREATE INDEX tblintcodes_Code ON tblintcodes ([Code]);
