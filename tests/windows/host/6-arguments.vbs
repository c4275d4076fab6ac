' What the host hands to an entry: the login, the argument of a report, that of a row.

Class ScriptedLogin
    Private Function Read(member)
        Host.Events.Add "Login." & member
        Read = Host.Scenario.Login.Item(member)
    End Function

    Public Property Get ShownName
        ShownName = "Login"
    End Property

    Public Property Get VosDbName
        VosDbName = Read("VosDbName")
    End Property

    Public Property Get AccountId
        AccountId = Read("AccountId")
    End Property

    Public Property Get Year
        Year = Read("Year")
    End Property

    Public Property Get Month
        Month = Read("Month")
    End Property

    Public Property Get Date
        Date = Read("Date")
    End Property

    Public Property Get Password
        Password = Read("Password")
    End Property

    Public Property Get UserId
        UserId = Read("UserId")
    End Property

    Public Property Get ConnectionText
        ConnectionText = Read("ConnectionText")
    End Property

    Public Property Get LanguageRegion
        Host.Events.Add "Login.LanguageRegion"
        LanguageRegion = Host.Scenario.Language
    End Property

    Public Property Get SystemDatabase
        Host.Events.Add "Login.SystemDatabase"
        Set SystemDatabase = New ScriptedSystemDatabase
    End Property

    Public Property Get AuthService
        Set AuthService = Nothing
        If Read("AuthService") Then Set AuthService = New ScriptedAuthorisation
    End Property
End Class

Class ScriptedSystemDatabase
    Public Property Get DbConnect
        Host.Events.Add "SystemDatabase.DbConnect"
        Set DbConnect = New SystemConnection
    End Property
End Class

Class SystemConnection
    Public Property Get ConnectionString
        Host.Events.Add "DbConnect.ConnectionString"
        ConnectionString = Host.Scenario.Login.Item("SystemConnection")
    End Property
End Class

Class ScriptedAuthorisation
    Public Sub Initialise(text, userId)
        Host.Events.Add "AuthService.Initialise '" & text & "', '" & userId & "'"
    End Sub

    Public Function GetList(kind, rule, action)
        Host.Events.Add "AuthService.GetList '" & kind & "', '" & rule & "', '" & action & "'"
        GetList = ""
        If Host.Scenario.Lists.Exists(kind) Then GetList = Host.Scenario.Lists.Item(kind)
    End Function
End Class

' The argument of GETSQL and GetSqlForOld: e.
Class ReportArguments
    Private objFilter
    Private objArguments

    Private Sub Class_Initialize
        Dim key
        Set objFilter = New ScriptedFilter
        Set objArguments = New NamedValues
        objArguments.Name = "Args"
        For Each key In Host.Scenario.Arguments.Keys
            objArguments.Put key, Host.Scenario.Arguments.Item(key)
        Next
    End Sub

    Private Sub Note(member)
        Host.Events.Add "e." & member
    End Sub

    Public Property Get DataSource
        Note "DataSource"
        Set DataSource = New ScriptedDataSource
    End Property

    Public Property Get Login
        Note "Login"
        Set Login = New ScriptedLogin
    End Property

    Public Property Get RawFilter
        Note "RawFilter"
        Set RawFilter = objFilter
    End Property

    Public Property Get Args
        Note "Args"
        Set Args = objArguments
    End Property

    Public Property Get LangID
        Note "LangID"
        LangID = Host.Scenario.Language
    End Property

    Public Property Get ObjreportManager
        Note "ObjreportManager"
        Set ObjreportManager = Host.Manager
    End Property
End Class

' Has the type under both names, so that the line tells which one was used.
Class ScriptedDataSource
    Public Property Let Type(number)
        Host.Events.Add "DataSource.Type = " & number
    End Property

    Public Property Let Typecode(number)
        Host.Events.Add "DataSource.Typecode = " & number
    End Property

    Public Property Get sql
        Host.Events.Add "DataSource.sql"
        sql = Host.Scenario.Sql
    End Property
End Class

' The argument of Execute and ExecuteForOld: a row of the result and the command that was chosen.
Class RowArguments
    Public ActionName
    Private dicCells

    Private Sub Class_Initialize
        ActionName = ""
        Set dicCells = CreateObject("Scripting.Dictionary")
    End Sub

    Public Sub SetCell(column, content)
        dicCells.Item(LCase(column)) = content
    End Sub

    Public Property Get Login
        Host.Events.Add "e.Login"
        Set Login = New ScriptedLogin
    End Property

    Public Property Get Action
        Host.Events.Add "e.Action"
        Action = ActionName
    End Property

    ' Only the argument of the ABC analysis has it.
    Public Property Get FltArgs
        Host.Events.Add "e.FltArgs"
        Set FltArgs = New FilterArguments
    End Property

    Public Property Get RelateData
        Host.Events.Add "e.RelateData"
        Set RelateData = New ScriptedRow
        RelateData.Bind dicCells
    End Property
End Class

Class FilterArguments
    Public Property Get ObjreportManager
        Host.Events.Add "FltArgs.ObjreportManager"
        Set ObjreportManager = Host.Manager
    End Property
End Class

Class ScriptedRow
    Private dicCells

    Public Sub Bind(cells)
        Set dicCells = cells
    End Sub

    Public Function GetData(column)
        Host.Events.Add "RelateData.GetData " & column
        If Not dicCells.Exists(LCase(column)) Then
            Err.Raise vbObjectError + 3, "host", "The row has no column " & column & "."
        End If
        GetData = dicCells.Item(LCase(column))
    End Function
End Class
