' What a host sees of failures: in the frame's steps always an error of the call; behind them an error, or a quiet
' end with the connection open, as the class has it. A script under Wine can't hand a text along with an error, so
' that the texts below are of the library's own errors only.

ProvideAll

ExpectFailureAtEveryEventOfTheFrame "ClsWtInfo", "e.LangID"
ExpectFailureAtEveryEventOfTheFrame "clsStaCostacc", "e.LangID"
ExpectFailureAtEveryEventOfTheFrame "clsIaAnalysis", "e.LangID"
ExpectFailureAtEveryEventOfTheFrame "ClsFCInventory", "e.LangID"
ExpectFailureAtEveryEventOfTheFrame "ClsOutDetailInfo", "e.LangID"
ExpectFailureAtEveryEventOfTheFrame "clsFCSumInfo", "e.LangID"
ExpectFailureAtEveryEventOfTheFrame "clsSfcSumInfo", "DataSource.sql"
ExpectFailureAtEveryEventOfTheFrame "clsLastRep", "DataSource.sql"
ExpectFailureAtEveryEventOfTheFrame "clsCinTurnRep", "DataSource.sql"
ExpectFailureAtEveryEventOfTheFrame "ClsABC", "DataSource.sql"
ExpectFailureAtEveryEventOfTheFrame "clsProPortion", "DataSource.sql"
ExpectFailureAtEveryEventOfTheFrame "clsAreaStockReport", "Args.Item IAAreeTable"

ExpectFailuresOfStatements "ClsWtInfo", 1
ExpectFailuresOfStatements "clsStaCostacc", 1
ExpectFailuresOfStatements "clsIaAnalysis", 1
ExpectFailuresOfStatements "ClsFCInventory", 1
ExpectFailuresOfStatements "ClsOutDetailInfo", 1
ExpectFailuresOfStatements "clsFCSumInfo", 1
ExpectFailuresOfStatements "clsSfcSumInfo", 1
ExpectFailuresOfStatements "clsProPortion", 0
ExpectFailuresOfStatements "clsAreaStockReport", 0

Report.Step "the error object"
On Error Resume Next
NewRun "clsProPortion"
Host.FailAtOpen = 1
Run
ExpectError Failed, "Kavelin.clsProPortion", "", "a server that can't be reached"
NewRun "clsProPortion"
Host.FailAtStatement = 1
Run
ExpectError ErrorInCommand, "Kavelin.clsProPortion", "", "a statement"
NewRun "clsProPortion"
Library.GETSQL Nothing
Report.Check Err.Number <> 0, "an argument that is nothing"
Report.Check InStr(Err.Description, "GETSQL") > 0, "names the entry: " & Err.Description
Err.Clear
NewRun "clsProPortion"
Library.GETSQL New PlainObject
Report.Check Err.Number <> 0, "an argument without the members"
Report.Check InStr(Err.Description, "RawFilter") > 0, "names the member: " & Err.Description
Err.Clear
Report.Finish
