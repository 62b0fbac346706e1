-- The empty assessment: one farm, one KEL year. Every new farm starts as a copy of the file made from this text.
-- docs/file_format.md tells what each column means, its unit and who writes it.
--
-- Values are the text that was typed or shown, so every column is TEXT: it gives back unchanged what was written. Dates
-- are ISO-8601 text (2024-12-19). An empty cell is NULL. Only the rainfall of [Store_in] is numbers.

-- The year assessed. This row is only ever changed, never added or removed.
CREATE TABLE [Type] (
    [Year] TEXT,
    [Link] TEXT
);
INSERT INTO [Type] DEFAULT VALUES;

-- The farm. One row.
CREATE TABLE [FarmProfile] (
    [Name]     TEXT,
    [KEL]      TEXT,
    [Town]     TEXT,
    [Area]     TEXT,
    [FieldNo]  TEXT,
    [KEL Area] TEXT
);

-- The fields of the farm, in the order of the profile's list.
CREATE TABLE [Field Data] (
    [Field Name] TEXT,
    [Size]       TEXT,
    [KEL Size]   TEXT,
    [Soil]       TEXT
);
CREATE INDEX [Field Data by field] ON [Field Data] ([Field Name]);

-- Land available for spreading, one row per field assessed, with the year's plan of land and slurry by month.
CREATE TABLE [Land] (
    [Field Area ID]                     TEXT,
    [Area In Grass (ha)]                TEXT,
    [Area Not In Grass (ha)]            TEXT,
    [Buffer Areas To Be Deducted (ha)]  TEXT,
    [Slope Areas To Be Deducted (ha)]   TEXT,
    [Other Areas To Be Deducted (ha)]   TEXT,
    [Available Field Area (ha)]         TEXT,
    [Crop]                              TEXT,
    [Soil]                              TEXT,
    [January]                           TEXT,
    [February]                          TEXT,
    [March]                             TEXT,
    [April]                             TEXT,
    [May]                               TEXT,
    [June]                              TEXT,
    [July]                              TEXT,
    [August]                            TEXT,
    [September]                         TEXT,
    [October]                           TEXT,
    [November]                          TEXT,
    [December]                          TEXT,
    [Applic_January]                    TEXT,
    [Applic_February]                   TEXT,
    [Applic_March]                      TEXT,
    [Applic_April]                      TEXT,
    [Applic_May]                        TEXT,
    [Applic_June]                       TEXT,
    [Applic_July]                       TEXT,
    [Applic_August]                     TEXT,
    [Applic_September]                  TEXT,
    [Applic_October]                    TEXT,
    [Applic_November]                   TEXT,
    [Applic_December]                   TEXT,
    [Total Area]                        TEXT
);
CREATE INDEX [Land by field] ON [Land] ([Field Area ID]);

-- Stock of the farm and the nitrogen it excretes, one row per stock line.
CREATE TABLE [Land_animals] (
    [Stock Unit]                                       TEXT,
    [Number Of Stock Units]                            TEXT,
    [Total N Excreted By One Stock Unit (kg/year)]     TEXT,
    [Total N Excreted By All These Animals (kg/year)]  TEXT
);

-- Slurry stores as the farmer measured them, one row per store; nothing derived is kept.
CREATE TABLE [Slurry_store] (
    [Store_name]          TEXT,
    [Store_shape]         TEXT,
    [Store_depth]         TEXT,
    [Store_length]        TEXT,
    [Store_width]         TEXT,
    [Store_circumference] TEXT,
    [Store_angle]         TEXT,
    [Store_%]             TEXT,
    [Rain_area]           TEXT
);
CREATE INDEX [Slurry_store by name] ON [Slurry_store] ([Store_name]);

-- Stock on a slurry system and the months in which its slurry goes to the stores, one row per stock line.
CREATE TABLE [Slurry_animals] (
    [Stock Unit]   TEXT,
    [Number]       TEXT,
    [Percent]      TEXT,
    [Volume]       TEXT,
    [Total Volume] TEXT,
    [January]      TEXT,
    [February]     TEXT,
    [March]        TEXT,
    [April]        TEXT,
    [May]          TEXT,
    [June]         TEXT,
    [July]         TEXT,
    [August]       TEXT,
    [September]    TEXT,
    [October]      TEXT,
    [November]     TEXT,
    [December]     TEXT
);

-- Mean monthly rainfall of the farm's town and the dirty water answers. At most one row.
CREATE TABLE [Store_in] (
    [January]      REAL,
    [February]     REAL,
    [March]        REAL,
    [April]        REAL,
    [May]          REAL,
    [June]         REAL,
    [July]         REAL,
    [August]       REAL,
    [September]    REAL,
    [October]      REAL,
    [November]     REAL,
    [December]     REAL,
    [Water_cow]    TEXT,
    [Water_pig]    TEXT,
    [Water_actual] TEXT
);

-- Single values with a name, one row per item.
CREATE TABLE [Misc] (
    [Item]  TEXT,
    [Value] TEXT
);
CREATE INDEX [Misc by item] ON [Misc] ([Item]);

-- Slurry and manure applications, one row per application.
CREATE TABLE [Manure_applic] (
    [Field Area ID]         TEXT,
    [Soil]                  TEXT,
    [Incorporation]         TEXT,
    [Manure Type]           TEXT,
    [Date]                  TEXT,
    [Area Spread]           TEXT,
    [Amount Applied]        TEXT,
    [Applic Rate]           TEXT,
    [Total N Content]       TEXT,
    [Total N Applic Rate]   TEXT,
    [Available N]           TEXT,
    [Available N Rate]      TEXT,
    [Available N Rate Next] TEXT,
    [Month Applied]         TEXT
);
CREATE INDEX [Manure_applic by field] ON [Manure_applic] ([Field Area ID]);

-- Inorganic fertiliser applications, one row per application.
CREATE TABLE [Inorganic N] (
    [Field Area ID] TEXT,
    [Date]          TEXT,
    [Type]          TEXT,
    [Amount]        TEXT,
    [N content]     TEXT,
    [Total N]       TEXT,
    [Comments]      TEXT
);
CREATE INDEX [Inorganic N by field] ON [Inorganic N] ([Field Area ID]);

-- Cropped fields with the answers behind their nitrogen requirement, one row per field.
CREATE TABLE [Crops] (
    [Field Area ID]                       TEXT,
    [Soil Type]                           TEXT,
    [Next Crop]                           TEXT,
    [Previous or Current Crop]            TEXT,
    [N Residue Group]                     TEXT,
    [Notes WW]                            TEXT,
    [Notes WB]                            TEXT,
    [Intended Market Adjustment (kg/ha)]  TEXT,
    [Undersowing Adjustment (kg/ha)]      TEXT,
    [Delayed Sowing Adjustment (kg/ha)]   TEXT,
    [Take-all Adjustment (kg/ha)]         TEXT,
    [Turnip Rape Adjustment (kg/ha)]      TEXT,
    [Manures Adjustment (kg/ha)]          TEXT,
    [Previous Manures Adjustment (kg/ha)] TEXT,
    [Winter Rainfall Adjustment (kg/ha)]  TEXT,
    [Spring Rainfall Adjustment (kg/ha)]  TEXT,
    [Variety Adjustment (%)]              TEXT,
    [Spring Rainfall Status]              TEXT,
    [Hdate p_crop]                        TEXT,
    [Hdate c_crop]                        TEXT,
    [Sowing date]                         TEXT,
    [Winter Rainfall Status]              TEXT
);
CREATE INDEX [Crops by field] ON [Crops] ([Field Area ID]);

-- Nitrogen recommended for a field by the crops or the grassland module, one row per field.
CREATE TABLE [Recommendations] (
    [Field Area ID] TEXT,
    [N required]    TEXT
);
CREATE INDEX [Recommendations by field] ON [Recommendations] ([Field Area ID]);

-- Grass fields with the answers behind their nitrogen requirement and their grazing stock, one row per field. The first
-- thirteen columns stand in the order of the site table.
CREATE TABLE [Site] (
    [Field Area ID]                       TEXT,
    [Soil Type]                           TEXT,
    [Site Class]                          TEXT,
    [Previous crop]                       TEXT,
    [N residue group]                     TEXT,
    [Clover]                              TEXT,
    [Site Use]                            TEXT,
    [Cuts]                                TEXT,
    [Applications]                        TEXT,
    [Adjustment]                          TEXT,
    [Manure current]                      TEXT,
    [Manure previous]                     TEXT,
    [End of season date]                  TEXT,
    [Field Area Size (ha)]                TEXT,
    [Livestock Group 1 (Type)]            TEXT,
    [Livestock Group 1 (Number)]          TEXT,
    [Livestock Group 1 (% Year Grazed)]   TEXT,
    [Livestock Group 2 (Type)]            TEXT,
    [Livestock Group 2 (Number)]          TEXT,
    [Livestock Group 2 (% Year Grazed)]   TEXT,
    [Livestock Group 3 (Type)]            TEXT,
    [Livestock Group 3 (Number)]          TEXT,
    [Livestock Group 3 (% Year Grazed)]   TEXT,
    [Livestock Group 4 (Type)]            TEXT,
    [Livestock Group 4 (Number)]          TEXT,
    [Livestock Group 4 (% Year Grazed)]   TEXT,
    [Livestock Group 5 (Type)]            TEXT,
    [Livestock Group 5 (Number)]          TEXT,
    [Livestock Group 5 (% Year Grazed)]   TEXT,
    [Livestock Group 6 (Type)]            TEXT,
    [Livestock Group 6 (Number)]          TEXT,
    [Livestock Group 6 (% Year Grazed)]   TEXT,
    [Livestock Group 7 (Type)]            TEXT,
    [Livestock Group 7 (Number)]          TEXT,
    [Livestock Group 7 (% Year Grazed)]   TEXT,
    [Livestock Group 8 (Type)]            TEXT,
    [Livestock Group 8 (Number)]          TEXT,
    [Livestock Group 8 (% Year Grazed)]   TEXT,
    [Livestock Group 9 (Type)]            TEXT,
    [Livestock Group 9 (Number)]          TEXT,
    [Livestock Group 9 (% Year Grazed)]   TEXT,
    [Livestock Group 10 (Type)]           TEXT,
    [Livestock Group 10 (Number)]         TEXT,
    [Livestock Group 10 (% Year Grazed)]  TEXT,
    [LUs Fed By Grazing]                  TEXT,
    [Silage Rate]                         TEXT
);
CREATE INDEX [Site by field] ON [Site] ([Field Area ID]);

-- Livestock units of the farm, one row per stock line.
CREATE TABLE [LU] (
    [Stock Type]                    TEXT,
    [Number of Animals]             TEXT,
    [% Of Year Animals Are On Farm] TEXT,
    [LU Ratio]                      TEXT,
    [Livestock Units]               TEXT
);

-- Rainfall and altitude answers of the grassland module. At most one row.
CREATE TABLE [Grass_data] (
    [Apr-Sep Rain] TEXT,
    [Altitude]     TEXT
);

-- In-field composting calculations, one row per calculation; a field may have several.
CREATE TABLE [Straw] (
    [Field Area ID]            TEXT,
    [Soil Mineral N]           TEXT,
    [Crop Residue Type]        TEXT,
    [PMS or Straw]             TEXT,
    [N Content]                TEXT,
    [Recommendation]           TEXT,
    [Potential Spring Release] TEXT
);
CREATE INDEX [Straw by field] ON [Straw] ([Field Area ID]);
