' Objects of the suite, and the makers by which the library gets them.

' Lumenet.ResLog: shown texts and messages.
Class ScriptedResources
    Private Sub Note(what)
        Host.Events.Add "ResourceObject." & what
    End Sub

    Public Property Set Login(value)
        Note "SetLogin"
    End Property

    Public Function GetResString(key)
        Note "GetResString " & key
        GetResString = "<" & key & ">"
        If Host.Scenario.Texts.Exists(key) Then GetResString = Host.Scenario.Texts.Item(key)
    End Function

    Public Function GetEnumName(enumType, code)
        Note "GetEnumName " & enumType & ", " & code
        GetEnumName = "<" & enumType & " " & code & ">"
    End Function

    Public Function GetEnumCode(enumType, text)
        Note "GetEnumCode " & enumType & ", " & text
        GetEnumCode = "code of " & text
        If Host.Scenario.Codes.Exists(text) Then GetEnumCode = Host.Scenario.Codes.Item(text)
    End Function

    Public Sub ShowMessage(text, icon)
        Note "ShowMessage " & text & ", " & icon
    End Sub

    Public Sub Unload
        Note "Unload"
    End Sub
End Class

Class ScriptedLedgerLogin
    Public Property Get ShownName
        ShownName = "LedgerLogin"
    End Property

    Public Sub Initialise(text, passwordText, first, second)
        Host.Events.Add "LedgerLogin.Initialise '" & text & "', '" & passwordText & "', " & PlainText(first) & _
            ", " & PlainText(second)
    End Sub

    Public Property Get DbConnection
        Host.Events.Add "LedgerLogin.DbConnection"
        Set DbConnection = New ScriptedConnection
        DbConnection.OpenAtOnce
    End Property
End Class

Class ScriptedLedgerPub
    Private Sub Note(what)
        Host.Events.Add "LedgerPub." & what
    End Sub

    Public Property Set Login(value)
        If value.ShownName = "LedgerLogin" Then
            Note "SetLogin gobjLedgerLogin"
        Else
            Note "SetLogin of another login"
        End If
    End Property

    Public Function Reload(first, second)
        Note "Reload '" & first & "', '" & second & "'"
        Reload = False
    End Function

    Public Sub GetYearMonthRange(yearText, account, ByRef first, ByRef last)
        Note "GetYearMonthRange " & yearText
        first = 1
        last = 12
    End Sub

    Public Function GetAccountYears(yearText, account)
        Note "GetAccountYears " & yearText
        Set GetAccountYears = CreateObject("Scripting.Dictionary")
    End Function

    Public Sub GetAccountYearParams(login, yearText, params)
        Note "GetAccountYearParams " & yearText
    End Sub
End Class

Class ScriptedLedgerParams
    Private Function Read(member)
        Host.Events.Add "LedgerParams." & member
        Read = Host.Scenario.Ledger.Item(member)
    End Function

    Public Property Get ShownName
        ShownName = "LedgerParams"
    End Property

    Public Property Get Year
        Year = Read("Year")
    End Property

    Public Property Get ValueStyle
        ValueStyle = Read("ValueStyle")
    End Property

    Public Property Get InventoryQualifier
        InventoryQualifier = Read("InventoryQualifier")
    End Property
End Class

Class ScriptedMachineInfo
    Public Property Get MachineName
        Host.Events.Add "MachineInfo.MachineName"
        MachineName = "MACHINE"
    End Property
End Class

' Known by its place in the object: the number is the first member.
Class ScriptedClientNumber
    Public Function Number
        Host.Events.Add "ClientNumber.Number"
        Number = 7
    End Function
End Class

Class ScriptedSettings
    Public Function Read(application, section, key, byDefault)
        Dim name
        name = application & ", " & section & ", " & key
        Host.Events.Add "SettingsStore.Read " & name
        Read = byDefault
        If Host.Scenario.Settings.Exists(name) Then Read = Host.Scenario.Settings.Item(name)
    End Function

    Public Sub Write(application, section, key, value)
        Dim name
        name = application & ", " & section & ", " & key
        Host.Events.Add "SettingsStore.Write " & name & " = " & value
        Host.Scenario.Settings.Item(name) = value
    End Sub
End Class

' The document viewer.
Class ScriptedViewer
    Private Sub Note(what)
        Host.Events.Add "Corvane.clsUniVch." & what
    End Sub

    Public Sub Init(account, edition, login)
        Note "Init(" & Shown(account) & ", " & Shown(edition) & ", " & Shown(login) & ")"
    End Sub

    Public Sub ShowVoucher(account, edition, vouType, key, nothingMore, login)
        Note "ShowVoucher(" & Shown(account) & ", " & Shown(edition) & ", " & Shown(vouType) & ", " & Shown(key) & _
            ", " & Shown(nothingMore) & ", " & Shown(login) & ")"
    End Sub

    Public Sub ShowCostJustVouch(account, key, nothingMore, edition, flag)
        Note "ShowCostJustVouch(" & Shown(account) & ", " & Shown(key) & ", " & Shown(nothingMore) & ", " & _
            Shown(edition) & ", " & Shown(flag) & ")"
    End Sub

    Public Sub ShowDifVouchs(account, trade, valueStyle, key)
        Note "ShowDifVouchs(" & Shown(account) & ", " & Shown(trade) & ", " & Shown(valueStyle) & ", " & _
            Shown(key) & ")"
    End Sub
End Class

' The ledger's public object.
Class ScriptedLedgerPublic
    Private Sub Note(what)
        Host.Events.Add "Tessel.clsPub." & what
    End Sub

    Public Property Get ShownName
        ShownName = "Tessel.clsPub"
    End Property

    Public Property Set g_business(value)
        Note "g_business = " & Shown(value)
    End Property

    Public Property Set oLogin(value)
        Note "oLogin = " & Shown(value)
    End Property

    Public Sub InitPubs2(system, systemDatabase, ledgerLogin, account, yearNumber, user, day, password)
        Note "InitPubs2(" & Shown(system) & ", " & Shown(systemDatabase) & ", " & Shown(ledgerLogin) & ", " & _
            Shown(account) & ", " & Shown(yearNumber) & ", " & Shown(user) & ", " & Shown(day) & ", " & _
            Shown(password) & ")"
    End Sub
End Class

' The ledger's voucher form.
Class ScriptedVoucher
    Private Sub Note(what)
        Host.Events.Add "Brannic.clsPZ." & what
    End Sub

    Public Property Set zzLogin(value)
        Note "zzLogin = " & Shown(value)
    End Property

    Public Property Set zzSys(value)
        Note "zzSys = " & Shown(value)
    End Property

    Public Sub StartUpPz(system, command, mode, language, again, nothingMore, sign, id, yearNumber)
        Note "StartUpPz(" & Shown(system) & ", " & Shown(command) & ", " & Shown(mode) & ", " & Shown(language) & _
            ", " & Shown(again) & ", " & Shown(nothingMore) & ", " & Shown(sign) & ", " & Shown(id) & ", " & _
            Shown(yearNumber) & ")"
    End Sub
End Class

Class ScriptedPortal
    Public Property Get ShownName
        ShownName = "VosPortalProxy.Business"
    End Property

    Public Sub RunCommand(command)
        Host.Events.Add "VosPortalProxy.Business.RunCommand(" & Shown(command) & ")"
    End Sub
End Class

' Makes an object of the suite whenever the library asks for one.
Class Maker
    Public Name

    Public Default Function Make
        Select Case Name
            Case "ADODB.Connection"
                Host.Events.Add "new Connection #" & (Host.Connections + 1)
                Set Make = New ScriptedConnection
            Case "ADODB.Recordset": Set Make = New ScriptedRecordset
            Case "Lumenet.ResLog": Set Make = Noted("ResourceObject", New ScriptedResources)
            Case "Suite.AuthService": Set Make = Noted("AuthService", New ScriptedAuthorisation)
            Case "Suite.LedgerLogin": Set Make = Noted("LedgerLogin", New ScriptedLedgerLogin)
            Case "Suite.LedgerPub": Set Make = Noted("LedgerPub", New ScriptedLedgerPub)
            Case "Suite.LedgerParams": Set Make = Noted("LedgerParams", New ScriptedLedgerParams)
            Case "Suite.MachineInfo": Set Make = Noted("MachineInfo", New ScriptedMachineInfo)
            Case "Suite.ClientNumber": Set Make = Noted("ClientNumber", New ScriptedClientNumber)
            Case "Suite.SettingsStore": Set Make = New ScriptedSettings
            Case "Suite.FormHost": Set Make = Noted("FormHost", New ScriptedForms)
            Case "Corvane.clsUniVch": Set Make = Noted(Name, New ScriptedViewer)
            Case "Tessel.clsPub": Set Make = Noted(Name, New ScriptedLedgerPublic)
            Case "Brannic.clsPZ": Set Make = Noted(Name, New ScriptedVoucher)
            Case "VosPortalProxy.Business": Set Make = Noted(Name, New ScriptedPortal)
        End Select
    End Function

    Private Function Noted(shownAs, made)
        Host.Events.Add "new " & shownAs
        Set Noted = made
    End Function
End Class

Dim Host
Set Host = New ScriptedHost

Dim ProvidedNames
ProvidedNames = "ADODB.Connection|ADODB.Recordset|Lumenet.ResLog|Suite.AuthService|Suite.LedgerLogin|" & _
    "Suite.LedgerPub|Suite.LedgerParams|Suite.MachineInfo|Suite.ClientNumber|Suite.SettingsStore|Suite.FormHost|" & _
    "Corvane.clsUniVch|Tessel.clsPub|Brannic.clsPZ|VosPortalProxy.Business"

' From now on the library gets all objects of the suite from the script.
Sub ProvideAll
    Dim provided, name, made
    Set provided = CreateObject("Kavelin.HostObjects")
    For Each name In Split(ProvidedNames, "|")
        Set made = New Maker
        made.Name = name
        provided.Provide name, made
    Next
End Sub
