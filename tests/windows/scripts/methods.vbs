' Methods beyond the entries of a report: results, optional arguments, arguments by reference, and what a wrong call
' gets. The error numbers are those of the language for the automation's codes.
' scenario: stock-summary/no-filter

Const WrongArguments = 450
Const NoSuchMember = 438

Dim Arguments, before, sent, result

' Before the library has made any of them: a resource object is made once for a thread.
Sub ExpectMissingObjectToBeNamed
    Dim provided, control, dialog
    Report.Step "an object that nobody provides"
    ProvideAll
    Set provided = CreateObject("Kavelin.HostObjects")
    provided.Withdraw "lumenet.RESLOG"
    provided.Withdraw "Lumenet.ResLog"
    Set control = CreateObject("Kavelin.clsFilterControl")
    Set dialog = New ScriptedFilter
    On Error Resume Next
    control.CallBack_FilterInit dialog
    Report.Check Err.Number <> 0, "a host without texts"
    Report.Check InStr(Err.Description, "Lumenet.ResLog") > 0, "names what is missing: " & Err.Description
    Err.Clear
    provided.Provide "Lumenet.ResLog", 5
    Report.Check Err.Number <> 0, "a maker that is no object"
    Err.Clear
    Host.Restart
End Sub

ExpectMissingObjectToBeNamed
ProvideAll
Report.Step "results"
Set Library = CreateObject("Kavelin.ClsWtInfo")
Library.sarn_tmpTable = "t"
Expect Library.TempTablename, "", "TempTablename of the journal"
Expect Library.TempTablename(), "", "TempTablename of the journal, with brackets"
Set Library = CreateObject("Kavelin.clsFCSumInfo")
Expect VarType(Library.GetViewFilter("x")), vbString, "type of GetViewFilter"

Report.Step "data that nobody asked for yet"
Dim name, made
For Each name In Split("ClsWtInfo|clsStaCostacc|clsIaAnalysis|ClsFCInventory|ClsOutDetailInfo", "|")
    Set made = CreateObject("Kavelin." & name)
    Expect made.MoveDataDetail, " ", "MoveDataDetail of a new " & name
Next
For Each name In Split("clsFCSumInfo|clsSfcSumInfo|clsLastRep", "|")
    Set made = CreateObject("Kavelin." & name)
    Expect made.MoveDataDetail, False, "MoveDataDetail of a new " & name
Next
On Error Resume Next
For Each name In Split("clsCinTurnRep|ClsABC|clsProPortion", "|")
    Set made = CreateObject("Kavelin." & name)
    result = made.MoveDataDetail
    Report.Check Err.Number <> 0, "MoveDataDetail of a new " & name & " gives no error"
    Expect Err.Source, "Kavelin." & name, "source of its error"
    Err.Clear
Next
On Error GoTo 0

' The capital share leaves the account's connection open, for the methods below.
Report.Step "a report before"
Host.Scenario.Read "scenario.txt"
Host.Scenario.Tell "sql|tempdb..share"
Set Arguments = New ReportArguments
Set Library = CreateObject("Kavelin.clsProPortion")
Library.GETSQL Arguments
Expect Library.TempTablename, "tempdb..share", "table of the capital share"

Report.Step "arguments that may be left out"
Set Library = CreateObject("Kavelin.clsIASFCReport")
before = Host.Sent.Count
result = Library.GetSum("", "", "", "2008-07-01", "2008-07-31", "", True, True, 0, 0, 0, "")
sent = Host.Sent.Count - before
Report.Check sent > 0, "GetSum sends nothing"
Dim grade, upper, rdGrade, warehouses, free, direct
grade = 0: upper = False: rdGrade = 0: warehouses = False: free = 0: direct = 0
before = Host.Sent.Count
result = Library.GetSum("", "", "", "2008-07-01", "2008-07-31", "", True, True, 0, 0, 0, "", grade, upper, rdGrade, _
    warehouses, free, direct, "", "", "", "", "", 0, 0)
Expect Host.Sent.Count - before, sent, "statements with all arguments"
Expect grade, 0, "an argument by reference"

Report.Step "the cost journal's table"
Set Library = CreateObject("Kavelin.clsStaCostacc")
before = Host.Sent.Count
Expect Library.CreateCostInfoTable(True, True, "T", "", "", "", "zh-CN", 2), True, "result without the ninth argument"
sent = Host.Sent.Count - before
before = Host.Sent.Count
Expect Library.CreateCostInfoTable(True, True, "T", "", "", "", "zh-CN", 2, 5), True, "result with it"
Expect Host.Sent.Count - before, sent, "statements with all arguments"

Report.Step "objects and texts by reference"
Dim template, conditions, table
Set template = CreateObject("Kavelin.clsSFCSumCon")
Set conditions = New ScriptedFilter
table = "tempdb..template"
before = Host.Sent.Count
template.CreateNewTemplate conditions, table
Report.Check Host.Sent.Count > before, "CreateNewTemplate sends nothing"
Expect table, "tempdb..template", "the table's name"
Set template = CreateObject("Kavelin.clsLastRep")
template.TempTablename = "tempdb..estimate"
before = Host.Sent.Count
table = "Sums"
Expect template.Createsql(table, True), False, "result of Createsql"
Expect Host.Sent.Count - before, 3, "statements of Createsql"

Report.Step "wrong calls"
Set Library = CreateObject("Kavelin.clsStaCostacc")
On Error Resume Next
Library.CreateCostInfoTable True, True
Expect Err.Number, WrongArguments, "too few arguments"
Err.Clear
Library.CreateCostInfoTable True, True, "T", "", "", "", "zh-CN", 2, 5, 6
Expect Err.Number, WrongArguments, "too many arguments"
Err.Clear
Library.GETSQL
Expect Err.Number, WrongArguments, "GETSQL without an argument"
Err.Clear
Library.GETSQL 5
Report.Check Err.Number <> 0, "GETSQL with a number"
Err.Clear
Library.NoSuchThing
Expect Err.Number, NoSuchMember, "a method that there isn't"
Err.Clear
Library.NoSuchThing = 5
Expect Err.Number, NoSuchMember, "a property that there isn't"
Err.Clear
result = Library.CreateCostInfoTable("maybe", True, "T", "", "", "", "zh-CN", 2)
Expect Err.Number, 13, "a text that is no flag"
Err.Clear
Set Library = CreateObject("Kavelin.clsSFCSumCon")
Library.bytFree = 256
Expect Err.Number, 6, "a number beyond a byte"
Err.Clear
Library.varDate(2) = "2008-07-01"
Report.Check Err.Number <> 0, "an index beyond the pair"
Err.Clear
Set Library = CreateObject("Kavelin.ClsFcSumCon")
Report.Check Err.Number <> 0, "a class that isn't public can be created"
Err.Clear

' Windows' own connection object, for which there is no provider here.
Report.Step "a connection that the host doesn't provide"
Dim provided
Set provided = CreateObject("Kavelin.HostObjects")
provided.Withdraw "ADODB.Connection"
Set Library = CreateObject("Kavelin.clsProPortion")
Set Arguments = New ReportArguments
before = Host.Connections
Library.GETSQL Arguments
Report.Check Err.Number <> 0, "a connection without a provider opens"
Expect Host.Connections, before, "connections of the host"
Err.Clear
Report.Finish
