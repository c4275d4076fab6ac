' From a row of a report to its document or accounting voucher, through viewers that the script plays.

Dim Row

Sub NewRow(action, vouType)
    Host.Restart
    Host.Scenario.SetParameter "AA", "cSysVersion", "工业"
    Host.Scenario.SetParameter "IA", "cValueStyle", "按仓库核算"
    Set Row = New RowArguments
    Row.ActionName = action
    Row.SetCell "cVouType", vouType
    Row.SetCell "单据号", " DJ-7 "
    Row.SetCell "业务类型", "普通采购"
    Row.SetCell "ID", "70"
    Row.SetCell "AutoID", "71"
    Row.SetCell "cPzID", "IA0000000001"
End Sub

' The first line of the log that begins so, "" if there is none.
Function LineOf(begin)
    Dim i
    LineOf = ""
    For i = Host.Events.Lines.Count To 1 Step -1
        If Left(Host.Events.Lines.Item(i), Len(begin)) = begin Then LineOf = Host.Events.Lines.Item(i)
    Next
End Function

Sub ExpectShown(vouType, wanted)
    Dim library
    Report.Step "a document of type " & vouType
    Set library = CreateObject("Kavelin.ClsWtInfo")
    NewRow "ActWtInfo", vouType
    library.Execute Row
    Expect LineOf("Corvane.clsUniVch.Show"), "Corvane.clsUniVch." & wanted, "Execute"
    NewRow "ActWtInfo", vouType
    library.ExecuteForOld Row
    Expect LineOf("Corvane.clsUniVch.Show"), "Corvane.clsUniVch." & wanted, "ExecuteForOld"
End Sub

ProvideAll

' A report that reads the language leaves it behind; the rows below show their business types in Chinese.
Report.Step "a report before"
Dim before
Host.Scenario.Tell "sql|WtResult"
Set before = CreateObject("Kavelin.ClsWtInfo")
before.GETSQL New ReportArguments

Report.Step "step by step"
Dim journal
Set journal = CreateObject("Kavelin.ClsWtInfo")
NewRow "ActWtInfo", "08"
journal.Execute Row
ExpectLines Host.Events.Lines, LinesOf("new Connection #1" & vbLf & "e.Login" & vbLf & _
    "#1.CursorLocation = 3" & vbLf & "Login.VosDbName" & vbLf & "#1.ConnectionString = 'account database'" & vbLf & "#1.ConnectionTimeout = 0" & vbLf & _
    "#1.CommandTimeout = 0" & vbLf & "#1.Open user='' password='' options=-1" & vbLf & "e.Action" & vbLf & _
    "e.RelateData" & vbLf & "RelateData.GetData cVouType" & vbLf & "RelateData.GetData 单据号" & vbLf & _
    "RelateData.GetData 业务类型" & vbLf & "RelateData.GetData ID" & vbLf & "RelateData.GetData AutoID" & vbLf & _
    "new Corvane.clsUniVch" & vbLf & "#1.OpenRecordset @1 location=3 type=0 lock=1 [1]" & vbLf & _
    "@1.Field cvalue" & vbLf & "@1.Close" & vbLf & "Corvane.clsUniVch.Init(connection #1, '工业', Login)" & vbLf & _
    "Corvane.clsUniVch.ShowVoucher(connection #1, '工业', '08', '70', nothing, Login)" & vbLf & "#1.Close"), "events"

ExpectShown "22", "ShowCostJustVouch(connection #1, 'DJ-7', nothing, '工业', True)"
ExpectShown "21", "ShowVoucher(connection #1, '工业', '21', ' DJ-7 ', nothing, Login)"
ExpectShown "24", "ShowVoucher(connection #1, '工业', '24', '71', nothing, Login)"
ExpectShown "35", "ShowDifVouchs(connection #1, False, '按仓库核算', ' DJ-7 ')"
ExpectShown "01", "ShowVoucher(connection #1, '工业', '01', '70', nothing, Login)"

Report.Step "documents of the other reports"
Dim costJournal, prices, ledger
Set costJournal = CreateObject("Kavelin.clsStaCostacc")
NewRow "Vouch", "01"
Row.SetCell "cvoucode", "DJ-8"
Row.SetCell "cbustype", "普通采购"
Row.SetCell "iPzid", "80"
costJournal.Execute Row
Expect LineOf("Corvane.clsUniVch.Show"), _
    "Corvane.clsUniVch.ShowVoucher(connection #1, '工业', '01', '80', nothing, Login)", "of the standard-cost journal"
Set prices = CreateObject("Kavelin.clsIaAnalysis")
NewRow "Vouch", "01"
Row.SetCell "cvoucode", "DJ-8"
Row.SetCell "cbustype", "直运采购"
Row.SetCell "iPzid", "80"
prices.Execute Row
Expect LineOf("Corvane.clsUniVch.Show"), _
    "Corvane.clsUniVch.ShowVoucher(connection #1, '工业', '25', '80', nothing, Login)", "of the price analysis"
Set ledger = CreateObject("Kavelin.ClsOutDetailInfo")
NewRow "OutDetailInfo", "05"
Row.SetCell "cvoutype", "05"
Row.SetCell "cvoucode", "DJ-9"
Row.SetCell "cbustype", "普通销售"
Row.SetCell "ipzid", "90"
ledger.Execute Row
Report.Check LineOf("Corvane.clsUniVch.Show") <> "", "of the detail ledger"

Report.Step "an accounting voucher"
NewRow "ActPzInfo", "08"
Host.Scenario.Tell "rows|start|Select iYear From IA_SubSidiary Where cPzID = N'IA0000000001'"
Host.Scenario.Tell "columns|iYear"
Host.Scenario.Tell "row|#int 2008"
journal.Execute Row
Expect LineOf("LedgerLogin.Initialise"), _
    "LedgerLogin.Initialise 'connection text', ';PWD=login password', False, False", "the ledger's login"
Expect LineOf("Tessel.clsPub.oLogin"), "Tessel.clsPub.oLogin = Login", "the login of the ledger's public object"
Expect LineOf("Brannic.clsPZ.zzSys"), "Brannic.clsPZ.zzSys = Tessel.clsPub", "the voucher's public object"
Expect LineOf("Brannic.clsPZ.StartUpPz"), "Brannic.clsPZ.StartUpPz('IA', '*IACXPZ', 3, 'CN', 'IA', nothing, " & _
    "'存货核算', 'IA0000000001', 2008)", "the voucher"
Expect LineOf("Tessel.clsPub.g_business"), "", "without a portal"

Report.Step "the portal"
Dim business, portal
Set business = CreateObject("Kavelin.ClsBusiness")
Set portal = New ScriptedPortal
business.Init portal
NewRow "ActPzInfo", "08"
journal.Execute Row
Expect LineOf("Tessel.clsPub.g_business"), "Tessel.clsPub.g_business = VosPortalProxy.Business", "the portal"

Report.Step "a row without a voucher"
NewRow "ActPzInfo", "08"
Row.SetCell "cPzID", ""
journal.Execute Row
Expect LineOf("ResourceObject.ShowMessage"), "ResourceObject.ShowMessage <Orvo.IA.CHHSSQL.02787>, 48", "the message"
Expect LineOf("new Brannic.clsPZ"), "", "the voucher form"

Report.Step "a viewer that fails"
NewRow "ActWtInfo", "01"
Host.Events.FailAtLine "Corvane.clsUniVch.Init(connection #1, '工业', Login)"
journal.Execute Row
Expect LineOf("Corvane.clsUniVch.ShowVoucher") <> "", True, "goes on to the voucher"
Expect LineOf("#1.Close"), "#1.Close", "closes the account"
Report.Finish
