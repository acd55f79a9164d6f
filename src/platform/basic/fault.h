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
    WrongUsage,           ///< the words of a command mean nothing
};

// Every fault: its name, the number of its sentence in the catalogue of texts, its kind. Numbers are fixed once given.
// Remarks follow another fault's sentence; words are put into one.
// clang-format off
#define KALVENOR_FAULTS(F) \
    /* Numbers, texts, memory */                              \
    F(OutOfMemory, 22000, Overflow)                           \
    F(NumberOutOfRange, 22001, Overflow)                      \
    F(NoNumber, 22002, TypeMismatch)                          \
    F(AmountTooLarge, 22003, Overflow)                        \
    F(LengthImpossible, 22004, InvalidProcedureCall)          \
    F(StartImpossible, 22005, InvalidProcedureCall)           \
    F(Misuse, 22006, InvalidProcedureCall)                    \
    F(FileEnds, 22007, Damaged)                               \
    F(TextNotClosed, 22008, Damaged)                          \
    F(TextGoesOn, 22009, Damaged)                             \
    F(SettingOutOfRange, 22010, Overflow)                     \
    /* Stopped by the person */                               \
    F(Stopped, 22020, Cancelled)                              \
    F(StoppedIncomplete, 22021, Cancelled)                    \
    F(StoppedUnwritten, 22022, Cancelled)                     \
    F(StoppedUnchanged, 22024, Cancelled)                     \
    F(StoppedOpening, 22025, Cancelled)                       \
    F(StoppedSaving, 22026, Cancelled)                        \
    F(StoppedReport, 22027, Cancelled)                        \
    F(StoppedChart, 22028, Cancelled)                         \
    F(StoppedAgeList, 22029, Cancelled)                       \
    F(StoppedDemo, 22030, Cancelled)                          \
    /* Files that are written */                              \
    F(OutputIncomplete, 22040, WriteFailed)                   \
    F(NoPlainFile, 22041, WriteFailed)                        \
    F(PlaceNotWritable, 22042, WriteFailed)                   \
    F(DiskFull, 22043, WriteFailed)                           \
    F(NotReplaced, 22044, WriteFailed)                        \
    F(NotWritten, 22045, WriteFailed)                         \
    F(NotRenamed, 22046, WriteFailed)                         \
    F(FolderNotMade, 22047, WriteFailed)                      \
    F(TargetIsDatabase, 22048, Refused)                       \
    F(TargetIsHostSettings, 22049, Refused)                   \
    F(TargetIsLink, 22039, Refused)                           \
    /* Pages, printing, charts, pictures */                   \
    F(LineTooHigh, 22050, InvalidProcedureCall)               \
    F(NoRoomOnPaper, 22051, InvalidProcedureCall)             \
    F(NoReport, 20940, Refused)                               \
    F(NoPrinter, 20937, Refused)                              \
    F(NoPagesInRange, 20941, Refused)                         \
    F(PrintFileNotWritten, 22055, WriteFailed)                \
    F(PrinterRefused, 22056, WriteFailed)                     \
    F(NoPrintElement, 22057, Subscript)                       \
    F(ChartEnding, 22060, Refused)                            \
    F(PictureSize, 22061, Refused)                            \
    F(PictureTooLarge, 22062, WriteFailed)                    \
    F(PictureNotWritten, 22063, WriteFailed)                  \
    F(PictureWithoutEnding, 22064, InvalidProcedureCall)      \
    F(NoPicture, 22065, InvalidProcedureCall)                 \
    F(NoPictureRoom, 22066, InvalidProcedureCall)             \
    F(PageUnfinished, 22067, WriteFailed)                     \
    F(WildcardInName, 22070, InvalidProcedureCall)            \
    /* Words of a command */                                  \
    F(WhomToMark, 22071, WrongUsage)                          \
    F(FilterWithCounter, 22072, WrongUsage)                   \
    F(NoWholeNumber, 22073, WrongUsage)                       \
    F(DateTooEarly, 22074, WrongUsage)                        \
    F(NoDate, 22075, WrongUsage)                              \
    /* Statistics */                                          \
    F(DayOutOfRange, 22080, Overflow)                         \
    F(IntroductionNotRead, 22081, FileUnreadable)             \
    F(IntroductionNotRtf, 22082, TypeMismatch)                \
    F(IntroductionTooLarge, 22083, Overflow)                  \
    F(IntroductionTooLong, 22084, Overflow)                   \
    /* Demonstration */                                       \
    F(PathTooLong, 22091, Refused)                            \
    F(DemoSize, 22092, InvalidProcedureCall)                  \
    F(DemoNowhere, 22093, InvalidProcedureCall)               \
    F(FileInTheWay, 22094, Refused)                           \
    F(FolderNotEmpty, 22095, Refused)                         \
    /* Templates */                                           \
    F(TemplateMissing, 22100, FileNotFound)                   \
    F(TemplateUnreadable, 22101, FileUnreadable)              \
    F(TemplateTooLarge, 22102, Damaged)                       \
    F(TemplateCut, 22103, Damaged)                            \
    F(NoTemplate, 22104, Damaged)                             \
    F(TemplateTextExpected, 22105, Damaged)                   \
    F(TemplateNumberExpected, 22106, Damaged)                 \
    F(TemplateTruthExpected, 22107, Damaged)                  \
    F(TemplateNotSaved, 22109, WriteFailed)                   \
    F(NoTemplateToReplace, 22116, Refused)                    \
    F(TemplateNotUtf8, 22117, Damaged)                        \
    F(TemplateFamilyMissing, 22110, FileNotFound)             \
    F(DriveUnknown, 22111, FileNotFound)                      \
    F(MarksNotPutBack, 22112, WriteFailed)                    \
    F(FormerNotReopened, 22113, Refused)                      \
    /* Words: the values of a template */                     \
    F(WordFamily, 22120, Refused)                             \
    F(WordTitle, 22121, Refused)                              \
    F(WordIntroduction, 22122, Refused)                       \
    F(WordChartType, 22123, Refused)                          \
    F(WordLegend, 22124, Refused)                             \
    F(WordSexes, 22125, Refused)                              \
    F(WordByBirth, 22126, Refused)                            \
    F(WordCounter, 22127, Refused)                            \
    /* Databases */                                           \
    F(TableMissing, 22200, TableNotFound)                     \
    F(TableLinked, 22201, TableNotFound)                      \
    F(FileMissing, 22202, FileNotFound)                       \
    F(StoppedUnmarked, 22023, Cancelled)                      \
    F(StoppedQuery, 22031, Cancelled)                         \
    F(StoppedMarking, 22032, Cancelled)                       \
    /* Databases that are read */                             \
    F(NotRead, 22203, FileUnreadable)                         \
    F(FileTooLarge, 22204, FileUnreadable)                    \
    F(FileTooShort, 22205, NotADatabase)                      \
    F(OtherKindOfFile, 22206, NotADatabase)                   \
    F(LargerThanJet, 22208, NotADatabase)                     \
    F(StillWritten, 22209, ChangedElsewhere)                  \
    F(NotDecoded, 22210, Damaged)                             \
    F(CatalogueDamaged, 22211, Damaged)                       \
    F(DefinitionDamaged, 22212, Damaged)                      \
    F(UsageMapMissing, 22213, Damaged)                        \
    /* Queries */                                             \
    F(DatabaseClosed, 22220, ObjectClosed)                    \
    F(RecordsetClosed, 22221, ObjectClosed)                   \
    F(NoRow, 22222, NoCurrentRow)                             \
    F(BehindLastRow, 22223, NoCurrentRow)                     \
    F(NotATable, 22224, Refused)                              \
    F(FieldMissing, 22225, ColumnNotFound)                    \
    F(ColumnMissing, 22226, ColumnNotFound)                   \
    F(IndexUnsuited, 22227, IndexNotFound)                    \
    F(IndexMissing, 22228, IndexNotFound)                     \
    F(NoIndexChosen, 22229, IndexNotFound)                    \
    F(NotInEdit, 22230, Refused)                              \
    F(OnlyMark, 22231, Refused)                               \
    F(RowDeleted, 22232, ChangedElsewhere)                    \
    F(QueryRunning, 22233, Refused)                           \
    F(OneStatement, 22234, Refused)                           \
    F(SecondStatement, 22235, Refused)                        \
    F(EngineNotSetUp, 22236, InvalidProcedureCall)            \
    F(TableNotQueried, 22237, Damaged)                        \
    F(NoSelect, 22238, Refused)                               \
    F(ResultTooLarge, 22239, Refused)                         \
    F(OnlyUpdate, 22240, Refused)                             \
    F(StatementEmpty, 22241, InvalidSql)                      \
    F(NoComments, 22242, InvalidSql)                          \
    F(SignUnknown, 22243, InvalidSql)                         \
    F(ControlCharacter, 22244, InvalidSql)                    \
    F(NameNotClosed, 22245, InvalidSql)                       \
    F(SearchTextNotClosed, 22246, InvalidSql)                 \
    F(AceFormat, 22207, NotADatabase)                         \
    F(SqlColumn, 22247, InvalidSql)                           \
    F(SqlAmbiguous, 22248, InvalidSql)                        \
    F(SqlSyntax, 22249, InvalidSql)                           \
    F(SqlTooShort, 22250, InvalidSql)                         \
    F(SqlFunction, 22251, InvalidSql)                         \
    F(SqlFunctionValues, 22252, InvalidSql)                   \
    F(SqlFunctionPlace, 22253, InvalidSql)                    \
    F(SqlTooDeep, 22254, InvalidSql)                          \
    F(SqlTooManyQueries, 22255, InvalidSql)                   \
    F(SqlTooLong, 22256, InvalidSql)                          \
    F(SqlOther, 22257, InvalidSql)                            \
    F(DoubleApostrophe, 22258, InvalidSql)                    \
    F(SqlPlace, 22259, InvalidSql)                            \
    F(SqlStatement, 22260, InvalidSql)                        \
    F(OnlySelectAndUpdate, 22261, Refused)                    \
    F(TableNotInFile, 22262, Refused)                         \
    F(FunctionNotAvailable, 22263, Refused)                   \
    F(NoRecursion, 22264, Refused)                            \
    F(PatternNotClosed, 22265, InvalidPattern)                \
    F(PatternBackwards, 22266, InvalidPattern)                \
    F(CharacterNotOrdered, 22267, InvalidProcedureCall)       \
    /* Marks */                                               \
    F(ReadOnlyFile, 22270, ReadOnly)                          \
    F(ReadOnlyFolder, 22271, ReadOnly)                        \
    F(NotOpenedForWriting, 22272, ReadOnly)                   \
    F(FileGone, 22273, FileNotFound)                          \
    F(PageNotRead, 22274, WriteFailed)                        \
    F(PageNotWritten, 22275, WriteFailed)                     \
    F(PageNotConfirmed, 22276, WriteFailed)                   \
    F(NotSynced, 22277, WriteFailed)                          \
    F(RowChanged, 22278, ChangedElsewhere)                    \
    F(FileChanged, 22279, ChangedElsewhere)                   \
    F(ChangedAgain, 22280, ChangedElsewhere)                  \
    F(NothingChanged, 22281, WriteFailed)                     \
    F(RowsChangedBefore, 22282, WriteFailed)                  \
    F(MarkColumnMissing, 22283, ColumnNotFound)               \
    F(TableOutdated, 22284, InvalidProcedureCall)             \
    F(RowMissing, 22285, NoCurrentRow)                        \
    F(NoYesNoColumn, 22286, NotMarkable)                      \
    F(MarkIndexed, 22287, NotMarkable)                        \
    F(KeyNotLong, 22288, NotMarkable)                         \
    F(MarkCalculated, 22289, NotMarkable)                     \
    F(RowWithoutKey, 22290, NotMarkable)                      \
    F(KeyRepeated, 22291, NotMarkable)                        \
    F(RecordTooOld, 22292, NotMarkable)                       \
    F(NoKeyColumn, 22293, NotMarkable)                        \
    F(RowNumbersHidden, 22294, NotMarkable)                   \
    F(PageLocked, 22295, WriteFailed)                         \
    /* Words: why a file cannot be used */                    \
    F(WordNoFile, 22330, Refused)                             \
    F(WordIsFolder, 22331, Refused)                           \
    F(WordNotPermitted, 22332, Refused)                       \
    F(WordReadOnly, 22333, Refused)                           \
    F(WordFileEnds, 22334, Refused)                           \
    F(WordLockedElsewhere, 22335, Refused)                    \
    F(WordNoName, 22336, Refused)                             \
    /* Databases that are made */                             \
    F(NameUnsuited, 22320, InvalidProcedureCall)              \
    F(NameTwice, 22321, InvalidProcedureCall)                 \
    F(TableTooWide, 22322, InvalidProcedureCall)              \
    F(ColumnImpossible, 22323, InvalidProcedureCall)          \
    F(IndexImpossible, 22324, InvalidProcedureCall)           \
    F(RowTooLong, 22325, InvalidProcedureCall)                \
    F(ValueUnsuited, 22326, InvalidProcedureCall)             \
    F(KeyUnsuited, 22327, InvalidProcedureCall)               \
    F(IndexKeyTwice, 22328, InvalidProcedureCall)             \
    F(DatabaseFull, 22329, InvalidProcedureCall)              \
    /* Damage that is passed over, or not */                  \
    F(FileCutShort, 22350, Damaged)                           \
    F(IncompleteNotMarked, 22351, NotMarkable)                \
    F(PartialPage, 22352, Damaged)                            \
    F(TableWithoutPage, 22353, Damaged)                       \
    F(TableTwice, 22354, Damaged)                             \
    F(TablePageTaken, 22355, Damaged)                         \
    F(RowsMissing, 22356, Damaged)                            \
    F(TooManyRows, 22357, Damaged)                            \
    F(RowsWithoutPlace, 22358, Damaged)                       \
    F(RowLeftOut, 22359, Damaged)                             \
    F(FieldBeyondRow, 22360, Damaged)                         \
    F(ValueSize, 22361, Damaged)                              \
    F(LongValueDamaged, 22362, Damaged)                       \
    F(LongValuesShared, 22363, Damaged)                       \
    F(TypeUnknown, 22364, Damaged)                            \
    F(ColumnTwice, 22365, Damaged)                            \
    /* Words: what is damaged in a row */                     \
    F(WordMovedAway, 22370, Damaged)                          \
    F(WordRecordTaken, 22371, Damaged)                        \
    F(WordUnknownFlag, 22372, Damaged)                        \
    F(WordOffsets, 22373, Damaged)                            \
    F(WordLongPartMissing, 22374, Damaged)                    \
    F(WordLongTooShort, 22375, Damaged)                       \
    F(WordLongCircle, 22376, Damaged)                         \
    F(WordLongHead, 22377, Damaged)                           \
    F(WordLongKind, 22378, Damaged)                           \
    /* Words: what is damaged in the definition of a table */ \
    F(WordPageBeyondEnd, 22300, Damaged)                      \
    F(WordOtherPage, 22301, Damaged)                          \
    F(WordPageCircle, 22302, Damaged)                         \
    F(WordNoPage, 22303, Damaged)                             \
    F(WordLength, 22304, Damaged)                             \
    F(WordCutShort, 22305, Damaged)                           \
    F(WordColumnCount, 22306, Damaged)                        \
    F(WordVariableColumns, 22307, Damaged)                    \
    F(WordIndexCount, 22308, Damaged)                         \
    F(WordHalfCharacter, 22309, Damaged)                      \
    F(WordNameTooLong, 22310, Damaged)                        \
    F(WordColumnsCut, 22311, Damaged)                         \
    F(WordIndexColumn, 22312, Damaged)                        \
    F(WordIndexesCut, 22313, Damaged)                         \
    F(WordIndexPages, 22314, Damaged)
// clang-format on

/// What went wrong, as exactly as a person is told.
enum class Fault : qint16 {
    None = 0,
// NOLINTNEXTLINE(bugprone-macro-parentheses): an enumerator takes none
#define F(name, number, kind) name = number,
    KALVENOR_FAULTS(F)
#undef F
};

ErrorKind kindOf(Fault fault);
/// The enumerator's name, for logs.
const char *nameOf(Fault fault);

} // namespace kalvenor::basic
