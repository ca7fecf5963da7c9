// What backup and restore say, as the tests expect it, misspellings and blanks included.
#ifndef VANTREL_TESTS_SUPPORT_BACKUPTEXTS_H_
#define VANTREL_TESTS_SUPPORT_BACKUPTEXTS_H_

namespace vantrel::test {

constexpr const char* CannotMake =
    "Sorry Could not make the directory path contact the systems administrator";
constexpr const char* Created = "Backup has been created Successfully";
constexpr const char* PleaseClose = "Please close all the instances of Internet Explorer";
constexpr const char* NotFound = "IE settings files not found ";
constexpr const char* Restored = "Saved Backups has been restored";
constexpr const char* RestoreError = "Error occured during the restore process ";
constexpr const char* None = "Last Backup: None";

}  // namespace vantrel::test

#endif  // VANTREL_TESTS_SUPPORT_BACKUPTEXTS_H_
