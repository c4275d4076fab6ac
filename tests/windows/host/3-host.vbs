' The host that the script plays: what it answers, what happened, what was sent.
Class ScriptedHost
    Public Events
    Public Scenario
    Public Statements         ' that were sent, from 1
    Public Sent               ' the number of the connection of each
    Public Connections        ' made so far
    Public Recordsets         ' opened so far
    Public FailAtStatement    ' that one fails, from 1
    Public FailAtOpen         ' the connection of that number fails to open
    Public Manager            ' the report manager that the arguments hold
    Public FormActions        ' what the user does in a form that is shown (ScriptedForms)
    Public FormText           ' what the form then showed

    Private Sub Class_Initialize
        Set Manager = New ReportManager
        Restart
    End Sub

    ' As a new host, but that the library goes on with what it has made on this thread.
    Public Sub Restart
        Set Events = New EventLog
        Set Scenario = New Scenario
        Set Sent = CreateObject("Scripting.Dictionary")
        Set Statements = CreateObject("Scripting.Dictionary")
        Connections = 0
        Recordsets = 0
        FailAtStatement = 0
        FailAtOpen = 0
        FormActions = ""
        FormText = ""
    End Sub

    ' Notes a statement; raises the error if it is the one that is to fail.
    Public Sub Send(connection, statement)
        Sent.Add Sent.Count + 1, connection
        Statements.Add Statements.Count + 1, statement
        If Sent.Count = FailAtStatement Then
            Err.Raise PlannedError, "provider", "planned failure of statement " & FailAtStatement
        End If
    End Sub
End Class

' The host's report manager: the format of a report, nothing unless a script gives one, and its list form.
Class ReportManager
    Public Format

    Private Sub Class_Initialize
        Set Format = Nothing
    End Sub

    Public Property Get ShownName
        ShownName = "report manager"
    End Property

    Public Function ReportFormatByName(name)
        Report.Check name = "存货周转率分析", "the format of a report " & name
        Set ReportFormatByName = Format
    End Function

    Public Function ReportListFormByName(name)
        Host.Events.Add "ReportListFormByName " & name
        Set ReportListFormByName = New ReportList
    End Function
End Class

Class ReportList
    Public Sub RefreshList
        Host.Events.Add "RefreshList"
    End Sub
End Class

Class ReportFormat
    Private objColumns

    Private Sub Class_Initialize
        Set objColumns = New FormatColumns
    End Sub

    Public Property Get cols
        Set cols = objColumns
    End Property
End Class

' The columns of a report's format, from 1.
Class FormatColumns
    Private dicColumns

    Private Sub Class_Initialize
        Set dicColumns = CreateObject("Scripting.Dictionary")
    End Sub

    Public Sub Add(expression)
        Dim added
        Set added = New FormatColumn
        added.Expression = expression
        dicColumns.Add dicColumns.Count + 1, added
    End Sub

    Public Property Get Count
        Count = dicColumns.Count
    End Property

    Public Default Property Get Item(position)
        Set Item = dicColumns.Item(position)
    End Property
End Class

Class FormatColumn
    Public Expression
    Public Col
    Public colVisible

    Private Sub Class_Initialize
        Col = 1
        colVisible = True
    End Sub
End Class

' An object that nothing is asked of.
Class PlainObject
    Public Property Get ShownName
        ShownName = "plain object"
    End Property
End Class
