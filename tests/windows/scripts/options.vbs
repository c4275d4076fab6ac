' The options of the ABC analysis, in a form that the host shows; its settings are kept by the host or by Windows.

Dim Analysis, Row, Shell, Provided

Sub ShowOptions(actions)
    Host.FormActions = actions
    Host.Events.Clear
    Analysis.Execute Row
End Sub

Function Written
    Dim i
    Written = 0
    For i = 1 To Host.Events.Lines.Count
        If Left(Host.Events.Lines.Item(i), 20) = "SettingsStore.Write " Then Written = Written + 1
    Next
End Function

ProvideAll
Set Analysis = CreateObject("Kavelin.ClsABC")
Set Row = New RowArguments
Row.ActionName = "ActOption"

Report.Step "the host's settings"
Host.Scenario.Settings.Item("存货核算, ABCOption872, M2") = "65"
Host.Scenario.Texts.Item("Orvo.IA.chhssql.ABC.Command1") = "确定"
ShowOptions ""
Expect Host.FormText, "Edit1=100 Edit2=65* Edit3=10* Edit4=0 Edit5=0 Edit6=20* Edit7=50* Edit8=100 " & _
    "Command1 确定 Command2 <Orvo.IA.chhssql.ABC.Command2> ", "the form"
Report.Check Host.Events.Lines.Find("FormHost.ShowModal ABC分类控制比", 0) > 0, "shown under its title"
ShowOptions "Edit2=70|Edit3=70|Command1"
Report.Check Host.Events.Lines.Find("FormHost.ShowMessage 成本比重设置不正确，请修改！, 64, 提示！", 0) > 0, _
    "refused"
Report.Check Host.Events.Lines.Find("form is True", 0) > 0, "and still open"
Expect Written, 0, "settings written"
ShowOptions "Edit2=60|Command1"
Report.Check Host.Events.Lines.Find("form is False", 0) > 0, "closed"
Expect Written, 8, "settings written"
Expect Host.Scenario.Settings.Item("存货核算, ABCOption872, M2"), "60", "the host's setting"

Report.Step "the user's settings in Windows"
Set Provided = CreateObject("Kavelin.HostObjects")
Provided.Withdraw "Suite.SettingsStore"
ShowOptions "Edit2=55|Command1"
Expect Written, 0, "settings written by the host"
Host.FormText = ""
ShowOptions ""
Expect Left(Host.FormText, 19), "Edit1=100 Edit2=55*", "the form of the next time"
ShowOptions "Edit2=70|Command1"

Report.Step "another part of the list"
Row.ActionName = "actB"
Host.Events.Clear
Analysis.Execute Row
ExpectLines Host.Events.Lines, LinesOf("e.Action" & vbLf & "e.FltArgs" & vbLf & "FltArgs.ObjreportManager" & vbLf & _
    "ReportListFormByName ABC成本分析" & vbLf & "RefreshList"), "events"
Report.Finish
