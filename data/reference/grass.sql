-- Nitrogen tables of the grassland module: grass_recs.csv, grass_adjust.csv and grass_source.csv. All figures are kg N/ha in one season.
-- Keys are compared as text.

-- Requirement of the reference management, by clover content, site class and nitrogen residue group.
CREATE TABLE [Grass_Recs] (
    [Clover]     TEXT,
    [Site Class] TEXT,
    [Group 1]    INTEGER,
    [Group 2]    INTEGER,
    [Group 3]    INTEGER,
    [Group 4]    INTEGER,
    [Group 5]    INTEGER,
    [Group 6]    INTEGER
);

-- What is added for another management: the use of the grass, number of cuts, applications to grazing or aftermath.
CREATE TABLE [Grass_adjust] (
    [Clover]     TEXT,
    [Management] TEXT,
    [Cuts]       TEXT,
    [Apps]       TEXT,
    [Adjustment] INTEGER
);

-- Where the figures come from, as the results page and the report tell it. At most one row.
CREATE TABLE [Grass_source] (
    [Source] TEXT
);
