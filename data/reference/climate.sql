-- Climate and location tables of the farm profile: rain.csv, locations.csv and grid.csv, in the order of those files.

-- Towns with their zone (empty outside all zones) and mean rainfall in mm a month. The first town is the stand-in for a
-- farm without one.
CREATE TABLE [KEL_rain] (
    [Town] TEXT,
    [KEL]  TEXT,
    [Jan]  REAL,
    [Feb]  REAL,
    [Mar]  REAL,
    [Apr]  REAL,
    [May]  REAL,
    [Jun]  REAL,
    [Jul]  REAL,
    [Aug]  REAL,
    [Sep]  REAL,
    [Oct]  REAL,
    [Nov]  REAL,
    [Dec]  REAL
);
CREATE INDEX [KEL_rain by town] ON [KEL_rain] ([Town]);

-- Land squares of the map by number, with a place in them and their zone (empty outside all zones).
CREATE TABLE [Scotland] (
    [Grid Number] INTEGER,
    [Location]    TEXT,
    [KEL]         TEXT
);
CREATE INDEX [Scotland by number] ON [Scotland] ([Grid Number]);
CREATE INDEX [Scotland by location] ON [Scotland] ([Location]);

-- The map: one row per row of squares from the north, one column per square from the west, holding the square's number;
-- NULL where there is no land.
CREATE TABLE [Scot_Main_Grid] (
    [Row] TEXT,
    [0]  INTEGER, [1]  INTEGER, [2]  INTEGER, [3]  INTEGER, [4]  INTEGER, [5]  INTEGER, [6]  INTEGER, [7]  INTEGER,
    [8]  INTEGER, [9]  INTEGER, [10] INTEGER, [11] INTEGER, [12] INTEGER, [13] INTEGER, [14] INTEGER, [15] INTEGER,
    [16] INTEGER, [17] INTEGER, [18] INTEGER, [19] INTEGER, [20] INTEGER, [21] INTEGER, [22] INTEGER, [23] INTEGER,
    [24] INTEGER, [25] INTEGER, [26] INTEGER, [27] INTEGER, [28] INTEGER, [29] INTEGER, [30] INTEGER, [31] INTEGER,
    [32] INTEGER, [33] INTEGER, [34] INTEGER, [35] INTEGER, [36] INTEGER
);
CREATE INDEX [Scot_Main_Grid by row] ON [Scot_Main_Grid] ([Row]);
