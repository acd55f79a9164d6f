// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

namespace kalvenor::basic {

/// What went wrong, coarse enough to choose an answer by.
enum class ErrorKind {
    InvalidProcedureCall, ///< a length or argument that cannot be (5)
    Overflow,             ///< a number does not fit its type (6)
    Subscript,            ///< an index outside its array (9)
    TypeMismatch,         ///< a text that is no number or no date (13)
    FileNotFound,         ///< the file or folder is not there (3024)
    FileUnreadable,       ///< there, but cannot be read
    NotADatabase,         ///< not a Jet 3 or Jet 4 file (3343)
    Damaged,              ///< a structure inside the file is damaged (3343)
    TableNotFound,        ///< 3078
    ColumnNotFound,       ///< 3265
    IndexNotFound,        ///< 3015
    ObjectClosed,         ///< used after it was closed (3420)
    NoCurrentRow,         ///< 3021
    InvalidSql,           ///< the statement cannot be understood (3075)
    InvalidPattern,       ///< a LIKE pattern that is not one (93)
    Refused,              ///< a statement or change that is never carried out
    ReadOnly,             ///< the file cannot be written (3027)
    NotMarkable,          ///< this column or row cannot take a mark
    ChangedElsewhere,     ///< another program changed the data meanwhile (3197)
    WriteFailed,          ///< writing was begun and failed
    Cancelled,            ///< the person stopped it
};

// Every fault: its name, the number of its sentence in the catalogue of texts, its kind. Numbers are fixed once given.
// Remarks follow another fault's sentence; words are put into one.
// clang-format off
#define KALVENOR_FAULTS(F) \
    /* Numbers, texts, memory */                         \
    F(OutOfMemory, 22000, Overflow)                      \
    F(NumberOutOfRange, 22001, Overflow)                 \
    F(NoNumber, 22002, TypeMismatch)                     \
    F(AmountTooLarge, 22003, Overflow)                   \
    F(LengthImpossible, 22004, InvalidProcedureCall)     \
    F(StartImpossible, 22005, InvalidProcedureCall)      \
    F(Misuse, 22006, InvalidProcedureCall)               \
    F(FileEnds, 22007, Damaged)                          \
    F(TextNotClosed, 22008, Damaged)                     \
    F(TextGoesOn, 22009, Damaged)                        \
    F(SettingOutOfRange, 22010, Overflow)                \
    /* Stopped by the person */                          \
    F(Stopped, 22020, Cancelled)                         \
    F(StoppedIncomplete, 22021, Cancelled)               \
    F(StoppedUnwritten, 22022, Cancelled)                \
    F(StoppedUnchanged, 22024, Cancelled)                \
    F(StoppedOpening, 22025, Cancelled)                  \
    F(StoppedSaving, 22026, Cancelled)                   \
    F(StoppedReport, 22027, Cancelled)                   \
    F(StoppedChart, 22028, Cancelled)                    \
    F(StoppedAgeList, 22029, Cancelled)                  \
    F(StoppedDemo, 22030, Cancelled)                     \
    /* Files that are written */                         \
    F(OutputIncomplete, 22040, WriteFailed)              \
    F(NoPlainFile, 22041, WriteFailed)                   \
    F(PlaceNotWritable, 22042, WriteFailed)              \
    F(DiskFull, 22043, WriteFailed)                      \
    F(NotReplaced, 22044, WriteFailed)                   \
    F(NotWritten, 22045, WriteFailed)                    \
    F(NotRenamed, 22046, WriteFailed)                    \
    F(FolderNotMade, 22047, WriteFailed)                 \
    /* Pages, printing, charts, pictures */              \
    F(LineTooHigh, 22050, InvalidProcedureCall)          \
    F(NoRoomOnPaper, 22051, InvalidProcedureCall)        \
    F(NoReport, 20940, Refused)                          \
    F(NoPrinter, 20937, Refused)                         \
    F(NoPagesInRange, 20941, Refused)                    \
    F(PrintFileNotWritten, 22055, WriteFailed)           \
    F(PrinterRefused, 22056, WriteFailed)                \
    F(NoPrintElement, 22057, Subscript)                  \
    F(ChartEnding, 22060, Refused)                       \
    F(PictureSize, 22061, Refused)                       \
    F(PictureTooLarge, 22062, WriteFailed)               \
    F(PictureNotWritten, 22063, WriteFailed)             \
    F(PictureWithoutEnding, 22064, InvalidProcedureCall) \
    F(NoPicture, 22065, InvalidProcedureCall)            \
    F(NoPictureRoom, 22066, InvalidProcedureCall)        \
    F(PageUnfinished, 22067, WriteFailed)                \
    F(CopyNotDeleted, 22069, WriteFailed)                \
    F(WildcardInName, 22070, InvalidProcedureCall)       \
    /* Statistics */                                     \
    F(DayOutOfRange, 22080, Overflow)                    \
    F(IntroductionNotRead, 22081, FileUnreadable)        \
    F(IntroductionNotRtf, 22082, TypeMismatch)           \
    F(IntroductionTooLarge, 22083, Overflow)             \
    F(IntroductionTooLong, 22084, Overflow)              \
    /* Demonstration */                                  \
    F(PathNotAnsi, 22090, Refused)                       \
    F(PathTooLong, 22091, Refused)                       \
    F(DemoSize, 22092, InvalidProcedureCall)             \
    F(DemoNowhere, 22093, InvalidProcedureCall)          \
    F(FileInTheWay, 22094, Refused)                      \
    F(FolderNotEmpty, 22095, Refused)                    \
    /* Templates */                                      \
    F(TemplateMissing, 22100, FileNotFound)              \
    F(TemplateUnreadable, 22101, FileUnreadable)         \
    F(TemplateTooLarge, 22102, Damaged)                  \
    F(TemplateCut, 22103, Damaged)                       \
    F(NoTemplate, 22104, Damaged)                        \
    F(TemplateTextExpected, 22105, Damaged)              \
    F(TemplateNumberExpected, 22106, Damaged)            \
    F(TemplateTruthExpected, 22107, Damaged)             \
    F(TemplateCharacters, 22108, Refused)                \
    F(TemplateNotSaved, 22109, WriteFailed)              \
    F(TemplateFamilyMissing, 22110, FileNotFound)        \
    F(DriveUnknown, 22111, FileNotFound)                 \
    F(MarksNotPutBack, 22112, WriteFailed)               \
    F(RenameFamily, 22114, Refused)                      \
    F(ChangeTitle, 22115, Refused)                       \
    F(FormerNotReopened, 22113, Refused)                 \
    /* Words: the values of a template */                \
    F(WordFamily, 22120, Refused)                        \
    F(WordTitle, 22121, Refused)                         \
    F(WordIntroduction, 22122, Refused)                  \
    F(WordChartType, 22123, Refused)                     \
    F(WordLegend, 22124, Refused)                        \
    F(WordSexes, 22125, Refused)                         \
    F(WordByBirth, 22126, Refused)                       \
    F(WordCounter, 22127, Refused)                       \
    /* Databases */                                      \
    F(TableMissing, 22200, TableNotFound)                \
    F(TableLinked, 22201, TableNotFound)                 \
    F(FileMissing, 22202, FileNotFound)
// clang-format on

/// What went wrong, as exactly as a person is told.
enum class Fault : qint16 {
    None = 0,
#define F(name, number, kind) name = number,
    KALVENOR_FAULTS(F)
#undef F
};

ErrorKind kindOf(Fault fault);
/// The enumerator's name, for logs.
const char *nameOf(Fault fault);

} // namespace kalvenor::basic
