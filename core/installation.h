// Where things lie. In a portable tree the program's folder holds dbases, graphics and User_files and takes
// the settings store and the reports; its parent, install_root, holds scdb, the help folders and the guides.
// In an installed tree the same folders are read-only data and everything written goes to the user's data
// folder.
#pragma once

#include <string>
#include <string_view>

namespace kel {

/// The picture that every report refers to.
inline constexpr std::string_view logo_file = "tolmlogoscot.jpg";

/// Text before the last / or \; empty if there is none.
std::string folder_of(std::string_view path);
/// Text after the last / or \; empty if there is none.
std::string file_name_of(std::string_view path);
/// Folder, separator and name as one path.
std::string join_path(std::string_view folder, std::string_view name);

struct installation {
    std::string program_folder;  // dbases, graphics, help/viewlets: read only
    std::string install_root;    // scdb, help folders, Viewer: read only
    std::string written_folder;  // settings store, reports, earlier copies
    std::string farm_folder{};   // new assessments; empty: User_files of the written folder

    std::string blank_assessment() const;  // dbases/blank.mdb
    std::string grass_tables() const;      // dbases/wren_grass.mdb, from the written folder if it is there
    std::string climate_tables() const;    // scdb/scdb.mdb
    std::string settings_store() const;    // kelstore.ini
    /// Where new assessments go, and where they went before an installed program put them under Documents.
    std::string user_files() const;
    std::string old_user_files() const;  // User_files
    std::string earlier_copies() const;  // Earlier copies
    std::string recent_list() const;     // recent.txt
    std::string graphics() const;        // graphics
    std::string report(std::string_view file_name) const;
};

/// Finds the tree of the program at `executable`. A program folder with a dbases folder in it is a portable
/// tree; without one, or when that folder cannot be written, written files go to `user_data_folder` and farms
/// to a folder of the program's in `documents_folder`, if there is one.
installation locate_installation(const std::string& executable, const std::string& user_data_folder,
                                 const std::string& documents_folder = {});

/// Makes the written folder ready: the reports' logo and, in a new user's folder, the sample farms. Throws
/// file_error.
void prepare_written_folder(installation& places);

}  // namespace kel
