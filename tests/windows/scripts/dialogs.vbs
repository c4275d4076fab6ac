' The callbacks of the filter dialog: what they do to its fields, and what they put into their arguments.

Dim Control, Dialog

Sub OpenDialog(identity)
    Host.Restart
    Set Control = CreateObject("Kavelin.clsFilterControl")
    Set Dialog = New ScriptedFilter
    Dialog.IdentityName = identity
End Sub

Sub ExpectEvents(text)
    ExpectLines Host.Events.Lines, LinesOf(text), "events"
    Host.Events.Clear
End Sub

Function Clicked(cancelBefore)
    Dim cancel
    cancel = cancelBefore
    Control.CallBack_FilterClick Dialog, cancel
    Clicked = cancel
End Function

Function FirstView
    Dim view
    view = "untouched"
    Control.CallBack_ReportViewInit Dialog, view
    FirstView = view
End Function

Function ViewAfter(key)
    Dim view
    view = "untouched"
    Control.CallBack_ReportViewChange key, Dialog, view
    ViewAfter = view
End Function

' The lines of the log in which a field or the user was told something.
Function Changes
    Dim i, line, kind
    Set Changes = New TextList
    For i = 1 To Host.Events.Lines.Count
        line = Host.Events.Lines.Item(i)
        For Each kind In Split("ShowMessage|SetField|ContextArgs.Add|.varValue = |.varValue2 = |.ListSource = ", "|")
            If InStr(line, kind) > 0 Then Changes.Add line
        Next
    Next
End Function

ProvideAll

Report.Step "a dialog that no report knows"
OpenDialog "ia[__]流水账"
Host.Scenario.Tell "field|iMonth|x"
Expect Control.CallBack_FilterInit(Dialog), Empty, "result of the opening"
ExpectEvents "new Connection #1" & vbLf & "#1.CursorLocation = 3" & vbLf & "RawFilter.Login" & vbLf & _
    "Login.VosDbName" & vbLf & "#1.ConnectionString = 'account database'" & vbLf & "#1.ConnectionTimeout = 0" & vbLf & _
    "#1.CommandTimeout = 0" & vbLf & "#1.Open user='' password='' options=-1" & vbLf & "new ResourceObject" & vbLf & _
    "ResourceObject.SetLogin" & vbLf & "Login.Year" & vbLf & "Login.Month" & vbLf & "Login.Year" & vbLf & _
    "RawFilter.FilterID"
Control.CallBack_ValueChange "iMonth", Dialog
ExpectEvents "RawFilter.FilterID"
Expect Clicked(True), False, "Cancel"
ExpectEvents "RawFilter.FilterID"
Expect FirstView, "untouched", "first view"
Expect ViewAfter("rdGrade"), "untouched", "view after a change"
Expect Host.Scenario.Fields.Item(1).FromValue, "x", "the field"

Report.Step "the capital share has no check"
OpenDialog "2BEEF300-28F0-4716-9D8A-9F0424174763"
Expect Clicked(True), False, "Cancel"

Report.Step "the summary"
OpenDialog "F3D99620-46E3-465E-97C7-ECD73735B108"
Host.Scenario.Tell "field|vouEstate|"
Host.Scenario.Tell "field|rdGrade|2"
Control.CallBack_FilterInit Dialog
Host.Scenario.Fields.Item(2).FromValue = "2"
Expect FirstView, "cross", "first view"
Host.Scenario.Fields.Item(1).FromValue = ""
Host.Events.Clear
Expect Clicked(False), True, "Cancel"
ExpectLines Changes, LinesOf("ResourceObject.ShowMessage <Orvo.IA.Orvo70.0414>, 64" & vbLf & _
    "ContextArgs.Add cross, ViewClass"), "what the check told"
Host.Scenario.Fields.Item(1).FromValue = "已记账单据"
Host.Scenario.Fields.Item(2).FromValue = "0"
Expect ViewAfter("cWhCode"), "untouched", "view after a change of another field"
Expect ViewAfter("RDGRADE"), "ordin", "view after its change"
Host.Events.Clear
Expect Clicked(True), False, "Cancel"
ExpectLines Changes, LinesOf("ContextArgs.Add ordin, ViewClass"), "what the check told"

Report.Step "the views of the standard-cost journal"
OpenDialog "C921AEDB-0DCD-4185-BCAA-00326BC8504F"
Host.Scenario.SetParameter "CA", "iCyFtMethod", "0"
Control.CallBack_FilterInit Dialog
Expect FirstView, "Income_Standard_Cost_Pro", "first view"
Expect ViewAfter("whatever"), "Income_Standard_Cost_Pro", "view after a change"

Report.Step "opening the journal"
OpenDialog "IA[__]流水账"
Host.Scenario.Tell "rows|start|select iyear,iid "
Host.Scenario.Tell "columns|iyear|iid"
Host.Scenario.Tell "row|#int 2008|#int 1"
Host.Scenario.Tell "row|#int 2008|#int 2"
Host.Scenario.Tell "field|iMonth||"
Host.Scenario.Tell "field|cWhCode||"
Host.Scenario.Tell "field|vouEstate||"
Control.CallBack_FilterInit Dialog
Report.Check Host.Sent.Count > 0, "the opening reads the account"
Report.Check Changes.Count > 0, "the opening prepares fields"
Control.InitAccMonth

Report.Step "a connection that fails"
OpenDialog "IA[__]流水账"
Host.FailAtOpen = 1
On Error Resume Next
Control.CallBack_FilterInit Dialog
Report.Check Err.Number <> 0, "the opening fails"
Expect Err.Source, "Kavelin.clsFilterControl", "source of the error"
Err.Clear
Expect Host.Events.Lines.Item(Host.Events.Lines.Count), "#1.Open user='' password='' options=-1", "the last event"
Report.Finish
