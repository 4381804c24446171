<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Willkommen beim Setup-Assistenten von [ProductName]</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>[ProductName] jetzt starten</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Freigegebene Ordner</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Alle Dateien sind auf dem neuesten Stand.</translation>
    </message>
    <message>
        <source>Processing...</source>
        <translation>Wird verarbeitet&#xa0;…</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>Der Setup-Assistent ist bereit, mit der Installation zu beginnen.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Verbindungsmodus</translation>
    </message>
    <message>
        <source>The local database is damaged. Disconnect from the server, then reconnect to rebuild the database. Details are in ~/.Quillmere/log.</source>
        <translation>Die lokale Datenbank ist beschädigt. Trennen Sie die Verbindung zum Server und verbinden Sie den Computer dann erneut, um die Datenbank neu aufzubauen. Details finden Sie in „~/.Quillmere/log“.</translation>
    </message>
    <message>
        <source>&amp;Close the applications and restart them after setup</source>
        <translation>Anwendungen &amp;schließen und nach dem Setup neu starten</translation>
    </message>
    <message>
        <source>The folder is a mount point. Choose a folder that is not a mount point.</source>
        <translation>Der Ordner ist ein Einhängepunkt. Wählen Sie einen Ordner aus, der kein Einhängepunkt ist.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] kann jetzt entfernt werden</translation>
    </message>
    <message>
        <source>The server has been replaced. Click here to reconnect.</source>
        <translation>Der Server wurde ersetzt. Klicken Sie hier, um den Computer erneut zu verbinden.</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>Derzeit werden Dateien synchronisiert (Anzahl: %1).</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change, repair, or remove [ProductName]. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>Mit dem Setup-Assistenten können Sie [ProductName] ändern, reparieren oder entfernen. Klicken Sie auf „Weiter“, um fortzufahren, oder auf „Abbrechen“, um den Setup-Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <translation>Ausschlussliste</translation>
    </message>
    <message>
        <source>Delete this share link?\nPeople who have the link will no longer be able to open the file.</source>
        <translation>Diesen Freigabelink löschen?\nPersonen, die den Link haben, können die Datei dann nicht mehr öffnen.</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server.</source>
        <translation>Quillmere auf diesem Computer ist zu alt, um mit dem Server zusammenzuarbeiten.</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Setup von [ProductName]</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Anmeldung fehlgeschlagen</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Verbindung wird getestet&#xa0;…</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted: it may have expired, belong to another server, or come from an unknown issuer. Others may be able to read the data you send. Continue?</source>
        <translation>Das Zertifikat des Servers ist nicht vertrauenswürdig: Es könnte abgelaufen sein, zu einem anderen Server gehören oder von einem unbekannten Aussteller stammen. Andere könnten die Daten lesen, die Sie senden. Trotzdem fortfahren?</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Neuer freigegebener Ordner</translation>
    </message>
    <message>
        <source>About Quillmere</source>
        <translation>Über Quillmere</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done.</source>
        <translation>Prüfen Sie die Einstellungen unten und klicken Sie dann auf „Fertig“.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the removal.</source>
        <translation>Der Setup-Assistent ist bereit, mit dem Entfernen zu beginnen.</translation>
    </message>
    <message>
        <source>This computer is already connected to this server. Edit the existing connection, or enter another server.</source>
        <translation>Dieser Computer ist bereits mit diesem Server verbunden. Bearbeiten Sie die vorhandene Verbindung oder geben Sie einen anderen Server ein.</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Downloadverlauf</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Check the network connection, then try again.</source>
        <translation>Die Verbindung zum Server wurde unterbrochen. Prüfen Sie die Netzwerkverbindung und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified.</source>
        <translation>Das Zertifikat des Servers konnte nicht überprüft werden.</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Schwarz-weißes Symbol im Infobereich verwenden</translation>
    </message>
    <message>
        <source>The files in this folder will be synced with the server.</source>
        <translation>Die Dateien in diesem Ordner werden mit dem Server synchronisiert.</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <translation>Der Proxyserver erfordert eine Anmeldung</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synchronisierungsaufgaben</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Ausgeschlossene Dateien</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Keine Berechtigung</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer. Ask the server administrator to upgrade it.</source>
        <translation>Quillmere auf dem Server ist zu alt, um mit diesem Computer zusammenzuarbeiten. Bitten Sie den Serveradministrator, Quillmere zu aktualisieren.</translation>
    </message>
    <message>
        <source>You can run setup again at any time. Click Finish to exit the Setup Wizard.</source>
        <translation>Sie können das Setup jederzeit erneut ausführen. Klicken Sie auf „Abschließen“, um den Setup-Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>The connection to the server is unstable.</source>
        <translation>Die Verbindung zum Server ist instabil.</translation>
    </message>
    <message>
        <source>A newer version of Quillmere is already installed. To install this version, remove the newer one first.</source>
        <translation>Eine neuere Version von Quillmere ist bereits installiert. Um diese Version zu installieren, entfernen Sie zuerst die neuere.</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Klicken Sie auf „Reparieren“, um die Installation von [ProductName] zu reparieren. Klicken Sie auf „Zurück“, um Ihre Auswahl zu überprüfen, oder auf „Abbrechen“, um den Setup-Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>Some settings have not been saved. Save them?</source>
        <translation>Einige Einstellungen wurden nicht gespeichert. Einstellungen speichern?</translation>
    </message>
    <message>
        <source>Icon overlays on files</source>
        <translation>Overlay-Symbole auf Dateien</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>This folder is already used by another sync program. Choose another folder to avoid conflicts.</source>
        <translation>Dieser Ordner wird bereits von einem anderen Synchronisierungsprogramm verwendet. Wählen Sie einen anderen Ordner aus, um Konflikte zu vermeiden.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>Inkompatible Version</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Synchronisierungsordner ändern</translation>
    </message>
    <message>
        <source>Enter a complete file name without a folder path, for example thumbs.db.</source>
        <translation>Geben Sie einen vollständigen Dateinamen ohne Ordnerpfad ein, zum Beispiel „thumbs.db“.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Setup stopped because of an error. The changes it had made were undone.</source>
        <translation>[DlgTitleFont]Das Setup wurde wegen eines Fehlers gestoppt. Die bereits vorgenommenen Änderungen wurden rückgängig gemacht.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Bereitschaft</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>Der Setup-Assistent installiert [ProductName] auf Ihrem Computer. Klicken Sie auf „Weiter“, um fortzufahren, oder auf „Abbrechen“, um den Setup-Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Synchronisierungsproblem</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>Lesen Sie die folgende Lizenzvereinbarung sorgfältig durch.</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>Ordner nicht leer</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Use an encrypted connection (TLS)</source>
        <translation>Verschlüsselte Verbindung (TLS) verwenden</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Einige Dateien, die aktualisiert werden müssen, werden gerade verwendet.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Schreibgeschützt</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>A new version of Quillmere is available. Click here to upgrade.</source>
        <translation>Eine neue Version von Quillmere ist verfügbar. Klicken Sie hier, um Quillmere zu aktualisieren.</translation>
    </message>
    <message>
        <source>The download of %1 was canceled.</source>
        <translation>Der Download von „%1“ wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The value you entered is not valid. Check it, then try again.</source>
        <translation>Der eingegebene Wert ist ungültig. Prüfen Sie ihn und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>This file has no earlier versions yet. Change the file and let it sync to create one.</source>
        <translation>Von dieser Datei gibt es noch keine früheren Versionen. Ändern Sie die Datei; bei der nächsten Synchronisierung wird eine Version erstellt.</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Trennen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Quillmere is initializing...</source>
        <translation>Quillmere wird initialisiert&#xa0;…</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Jetzt starten</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Synchronisierung pausieren</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Zusammenführungsmodus</translation>
    </message>
    <message>
        <source>Quillmere is ready.</source>
        <translation>Quillmere ist bereit.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>This version could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>Diese Version konnte nicht heruntergeladen werden. Prüfen Sie die Verbindung zum Server und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Einstellungen werden angewendet&#xa0;…</translation>
    </message>
    <message>
        <source>Files excluded from syncing</source>
        <translation>Von der Synchronisierung ausgeschlossene Dateien</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Erstellt</translation>
    </message>
    <message>
        <source>The Quillmere service is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>Der Quillmere-Dienst ist auf dem Server deaktiviert. Bitten Sie den Serveradministrator, ihn zu aktivieren.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Choose shared folders to sync</source>
        <translation>Freigegebene Ordner zum Synchronisieren auswählen</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]&amp;Entfernen</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Wird hochgeladen&#xa0;…</translation>
    </message>
    <message>
        <source>To use selective sync, ask the server administrator to upgrade Quillmere on the server.</source>
        <translation>Um die selektive Synchronisierung zu verwenden, bitten Sie den Serveradministrator, Quillmere auf dem Server zu aktualisieren.</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Es wurden keine Einstellungen geändert.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]Dateien in Verwendung</translation>
    </message>
    <message>
        <source>Repairs errors in the installation of [ProductName] by restoring missing or damaged files and shortcuts.</source>
        <translation>Behebt Fehler in der Installation von [ProductName], indem fehlende oder beschädigte Dateien und Verknüpfungen wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>Excluded file extensions</source>
        <translation>Ausgeschlossene Dateiendungen</translation>
    </message>
    <message>
        <source>Syncing is paused.</source>
        <translation>Die Synchronisierung ist pausiert.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome back to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Willkommen zurück beim Setup-Assistenten von [ProductName]</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is not mounted. Mount the drive, then resume syncing. See Sync tasks for the folder.</source>
        <translation>Das Laufwerk mit dem Synchronisierungsordner ist nicht eingehängt. Hängen Sie das Laufwerk ein und setzen Sie die Synchronisierung dann fort. Den Ordner finden Sie unter „Synchronisierungsaufgaben“.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full.</source>
        <translation>Das Laufwerk mit dem Synchronisierungsordner ist voll.</translation>
    </message>
    <message>
        <source>Proxy server address</source>
        <translation>Adresse des Proxyservers</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorieren</translation>
    </message>
    <message>
        <source>A folder with this name already exists on this computer. Merge its files with those on the server?</source>
        <translation>Auf diesem Computer ist bereits ein Ordner mit diesem Namen vorhanden. Seine Dateien mit denen auf dem Server zusammenführen?</translation>
    </message>
    <message>
        <source>Quillmere keeps your files in sync between your computers and your server.</source>
        <translation>Quillmere hält Ihre Dateien auf Ihren Computern und Ihrem Server synchron.</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Installierte Komponenten ändern</translation>
    </message>
    <message>
        <source>Welcome to Quillmere</source>
        <translation>Willkommen bei Quillmere</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Reparieren</translation>
    </message>
    <message>
        <source>Upgrading Quillmere...</source>
        <translation>Quillmere wird aktualisiert&#xa0;…</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Synchronisierungsmodus</translation>
    </message>
    <message>
        <source>Enter a domain name, an IP address, or a server ID.</source>
        <translation>Geben Sie einen Domainnamen, eine IP-Adresse oder eine Server-ID ein.</translation>
    </message>
    <message>
        <source>A share link could not be created for this file. Check the connection to the server, then try again.</source>
        <translation>Für diese Datei konnte kein Freigabelink erstellt werden. Prüfen Sie die Verbindung zum Server und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Files being synced: %1</source>
        <translation>Dateien, die gerade synchronisiert werden: %1</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Erneut verbinden</translation>
    </message>
    <message>
        <source>Your files, in sync everywhere</source>
        <translation>Ihre Dateien, überall synchron</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>The Setup Wizard is making the changes you chose.</source>
        <translation>Der Setup-Assistent nimmt die gewählten Änderungen vor.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>The folders and files you deselected will be removed from this computer. They will be kept on the server.</source>
        <translation>Die abgewählten Ordner und Dateien werden von diesem Computer entfernt. Auf dem Server bleiben sie erhalten.</translation>
    </message>
    <message>
        <source>Setup made all the changes you chose. Click Finish to exit the Setup Wizard.</source>
        <translation>Das Setup hat alle gewählten Änderungen vorgenommen. Klicken Sie auf „Abschließen“, um den Setup-Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Klicken Sie auf „Entfernen“, um [ProductName] von Ihrem Computer zu entfernen. Klicken Sie auf „Zurück“, um Ihre Auswahl zu überprüfen, oder auf „Abbrechen“, um den Setup-Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>Kein Speicherplatz mehr</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Getrennt</translation>
    </message>
    <message>
        <source>You have used all of your space on the server.</source>
        <translation>Ihr gesamter Speicherplatz auf dem Server ist belegt.</translation>
    </message>
    <message>
        <source>Disconnect from the server?\nYour files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>Verbindung zum Server trennen?\nIhre Dateien bleiben auf diesem Computer und auf dem Server erhalten, werden aber nicht mehr synchronisiert.</translation>
    </message>
    <message>
        <source>The relay service has a problem. Try again later, or connect to the server by its IP address.</source>
        <translation>Beim Relay-Dienst ist ein Problem aufgetreten. Versuchen Sie es später erneut oder verbinden Sie sich über die IP-Adresse mit dem Server.</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>Server-ID</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Ausgeschlossene Dateinamen</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Serveradresse</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Turned on</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full. Free some space on it to continue syncing.</source>
        <translation>Das Laufwerk mit dem Synchronisierungsordner ist voll. Geben Sie darauf Speicherplatz frei, um die Synchronisierung fortzusetzen.</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Zu synchronisierende Ordner</translation>
    </message>
    <message>
        <source>Choose sync folder</source>
        <translation>Synchronisierungsordner auswählen</translation>
    </message>
    <message>
        <source>Connection settings</source>
        <translation>Verbindungseinstellungen</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selektive Synchronisierung</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>You have used all of your space on the server. Delete files you do not need, or ask the server administrator for more space.</source>
        <translation>Ihr gesamter Speicherplatz auf dem Server ist belegt. Löschen Sie nicht benötigte Dateien oder bitten Sie den Serveradministrator um mehr Speicherplatz.</translation>
    </message>
    <message>
        <source>After you start [ProductName], you can find it in the system tray.</source>
        <translation>Nach dem Start finden Sie [ProductName] im Infobereich.</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open and restart the computer later</source>
        <translation>&amp;Anwendungen geöffnet lassen und den Computer später neu starten</translation>
    </message>
    <message>
        <source>Use the following proxy server</source>
        <translation>Folgenden Proxyserver verwenden</translation>
    </message>
    <message>
        <source>This file was changed on this computer and on the server. Both copies are in the same folder under different names. Compare them, then keep the one you need.</source>
        <translation>Diese Datei wurde auf diesem Computer und auf dem Server geändert. Beide Kopien befinden sich unter verschiedenen Namen im selben Ordner. Vergleichen Sie sie und behalten Sie diejenige, die Sie benötigen.</translation>
    </message>
    <message>
        <source>All your files on every computer, kept on your own server</source>
        <translation>Alle Ihre Dateien auf jedem Computer, gespeichert auf Ihrem eigenen Server</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Desktop-Benachrichtigungen anzeigen</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Close them, then click Retry. To continue without closing them, click Ignore. To leave setup, click Exit.</source>
        <translation>Die folgenden Anwendungen verwenden Dateien, die vom Setup aktualisiert werden müssen. Schließen Sie die Anwendungen und klicken Sie dann auf „Wiederholen“. Um fortzufahren, ohne sie zu schließen, klicken Sie auf „Ignorieren“. Um das Setup zu beenden, klicken Sie auf „Beenden“.</translation>
    </message>
    <message>
        <source>The server cannot be reached. Check the network connection and the server address, then try again.</source>
        <translation>Der Server ist nicht erreichbar. Prüfen Sie die Netzwerkverbindung und die Serveradresse und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Lokaler Synchronisierungsordner</translation>
    </message>
    <message>
        <source>Files that match an entry in this list are not synced.</source>
        <translation>Dateien, die einem Eintrag in dieser Liste entsprechen, werden nicht synchronisiert.</translation>
    </message>
    <message>
        <source>Edit connection...</source>
        <translation>Verbindung bearbeiten&#xa0;…</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Choose whether setup should close them. If they stay open, you need to restart the computer to finish setup.</source>
        <translation>Die folgenden Anwendungen verwenden Dateien, die vom Setup aktualisiert werden müssen. Wählen Sie aus, ob das Setup die Anwendungen schließen soll. Bleiben sie geöffnet, müssen Sie den Computer neu starten, um das Setup abzuschließen.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair.</source>
        <translation>Der Setup-Assistent ist bereit, mit der Reparatur zu beginnen.</translation>
    </message>
    <message>
        <source>Open Quillmere</source>
        <translation>Quillmere öffnen</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Bitte starten Sie %1 neu, um die neuen Spracheinstellungen anzuwenden.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausieren</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>Overlay-Symbole auf ausgeschlossenen Dateien anzeigen</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Wird geladen&#xa0;…</translation>
    </message>
    <message>
        <source>The limit of synced shared folders is reached: %1. Stop syncing a shared folder before you add another.</source>
        <translation>Die Höchstzahl synchronisierter freigegebener Ordner ist erreicht: %1. Beenden Sie die Synchronisierung eines freigegebenen Ordners, bevor Sie einen weiteren hinzufügen.</translation>
    </message>
    <message>
        <source>Remove this sync task?\nIts files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>Diese Synchronisierungsaufgabe entfernen?\nDie zugehörigen Dateien bleiben auf diesem Computer und auf dem Server erhalten, werden aber nicht mehr synchronisiert.</translation>
    </message>
    <message>
        <source>Starting Quillmere...</source>
        <translation>Quillmere wird gestartet&#xa0;…</translation>
    </message>
    <message>
        <source>Quillmere could not be upgraded. Your earlier version was kept. Restart the computer, then try again. Details are in ~/.Quillmere/log.</source>
        <translation>Quillmere konnte nicht aktualisiert werden. Die bisherige Version wurde beibehalten. Starten Sie den Computer neu und versuchen Sie es dann erneut. Details finden Sie in „~/.Quillmere/log“.</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>Namen ausschließen, die mit einem Punkt beginnen</translation>
    </message>
    <message>
        <source>The server has no free disk space. Ask the server administrator to free some space.</source>
        <translation>Auf dem Server ist kein freier Speicherplatz vorhanden. Bitten Sie den Serveradministrator, Speicherplatz freizugeben.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]License agreement</source>
        <translation>[DlgTitleFont]Lizenzvereinbarung</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>„%1“ wurde heruntergeladen.</translation>
    </message>
    <message>
        <source>The versions of this file could not be listed. Check the connection to the server, then try again.</source>
        <translation>Die Versionen dieser Datei konnten nicht aufgelistet werden. Prüfen Sie die Verbindung zum Server und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>Connected to the server.</source>
        <translation>Mit dem Server verbunden.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup is complete</source>
        <translation>{\VerdanaBold13}Das Setup von [ProductName] ist abgeschlossen</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokales Netzwerk</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Keinen Proxyserver verwenden</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Freigegebener Ordner nicht gefunden</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>Parvenor Quillmere</source>
        <translation>Parvenor Quillmere</translation>
    </message>
    <message>
        <source>%1 could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>„%1“ konnte nicht heruntergeladen werden. Prüfen Sie die Verbindung zum Server und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>Watching for file changes...</source>
        <translation>Dateiänderungen werden überwacht&#xa0;…</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Freigegebener Ordner</translation>
    </message>
    <message>
        <source>Quillmere settings</source>
        <translation>Quillmere-Einstellungen</translation>
    </message>
    <message>
        <source>The share link could not be deleted. Check the connection to the server, then try again.</source>
        <translation>Der Freigabelink konnte nicht gelöscht werden. Prüfen Sie die Verbindung zum Server und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified: it may have expired, belong to another server, or come from an unknown issuer. Ask the server administrator to check the certificate.</source>
        <translation>Das Zertifikat des Servers konnte nicht überprüft werden: Es könnte abgelaufen sein, zu einem anderen Server gehören oder von einem unbekannten Aussteller stammen. Bitten Sie den Serveradministrator, das Zertifikat zu überprüfen.</translation>
    </message>
    <message>
        <source>This is not the server that this computer was connected to. Check the server address, or reconnect.</source>
        <translation>Dies ist nicht der Server, mit dem dieser Computer verbunden war. Prüfen Sie die Serveradresse oder verbinden Sie den Computer erneut.</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>[ProductName] hat keine Komponenten, die einzeln geändert werden können.</translation>
    </message>
    <message>
        <source>The address or port of the proxy server is missing. Enter both, then try again.</source>
        <translation>Die Adresse oder der Port des Proxyservers fehlt. Geben Sie beides ein und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>The user name is missing. Enter a user name.</source>
        <translation>Der Benutzername fehlt. Geben Sie einen Benutzernamen ein.</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Link löschen</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>Ich &amp;akzeptiere die Bedingungen der Lizenzvereinbarung</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>Aktualisiert: %1</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Verbindungen verwalten</translation>
    </message>
    <message>
        <source>Connect to another server...</source>
        <translation>Mit anderem Server verbinden&#xa0;…</translation>
    </message>
    <message>
        <source>Show icon overlays</source>
        <translation>Overlay-Symbole anzeigen</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Making changes to [ProductName]</source>
        <translation>[DlgTitleFont]An [ProductName] werden Änderungen vorgenommen</translation>
    </message>
    <message>
        <source>Service turned off</source>
        <translation>Dienst deaktiviert</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchronisieren</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder?\nThe files already on this computer will be kept.</source>
        <translation>Synchronisierung dieses freigegebenen Ordners beenden?\nDie Dateien, die sich bereits auf diesem Computer befinden, bleiben erhalten.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installieren</translation>
    </message>
    <message>
        <source>Files to exclude</source>
        <translation>Auszuschließende Dateien</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>Statusdetails</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>Ich akzeptiere die Bedingungen der Lizenzvereinbarung &amp;nicht</translation>
    </message>
    <message>
        <source>Something went wrong. Try again, and contact the server administrator if the problem continues. Details are in ~/.Quillmere/log.</source>
        <translation>Es ist ein Fehler aufgetreten. Versuchen Sie es erneut und wenden Sie sich an den Serveradministrator, wenn das Problem weiterhin besteht. Details finden Sie in „~/.Quillmere/log“.</translation>
    </message>
    <message>
        <source>Tray icons</source>
        <translation>Symbole im Infobereich</translation>
    </message>
    <message>
        <source>The folder is read-only. Choose a folder you can write to.</source>
        <translation>Der Ordner ist schreibgeschützt. Wählen Sie einen Ordner mit Schreibzugriff aus.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxyeinstellungen</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so Quillmere might not install completely. Continue?</source>
        <translation>Sie sind nicht als Administrator angemeldet, daher wird Quillmere möglicherweise nicht vollständig installiert. Fortfahren?</translation>
    </message>
    <message>
        <source>Use the tray icon at any time to see the sync status or change the settings.</source>
        <translation>Über das Symbol im Infobereich können Sie jederzeit den Synchronisierungsstatus anzeigen oder die Einstellungen ändern.</translation>
    </message>
    <message>
        <source>Share link created</source>
        <translation>Freigabelink erstellt</translation>
    </message>
    <message>
        <source>The user name or password is not correct. Check both, then try again.</source>
        <translation>Der Benutzername oder das Passwort ist falsch. Prüfen Sie beides und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] kann jetzt repariert werden</translation>
    </message>
    <message>
        <source>The shared folder %1 is now available. Click here to sync it.</source>
        <translation>Der freigegebene Ordner „%1“ ist jetzt verfügbar. Klicken Sie hier, um ihn zu synchronisieren.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>Verbindungsdaten</translation>
    </message>
    <message>
        <source>Lets you choose which features are installed.</source>
        <translation>Hier können Sie auswählen, welche Komponenten installiert werden.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Ordnername</translation>
    </message>
    <message>
        <source>Folder is a mount point</source>
        <translation>Ordner ist ein Einhängepunkt</translation>
    </message>
    <message>
        <source>Choose another folder...</source>
        <translation>Anderen Ordner auswählen&#xa0;…</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Nur herunterladen</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Repair</source>
        <translation>[DlgTitleFont]&amp;Reparieren</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maximale Dateigröße</translation>
    </message>
    <message>
        <source>Enter the server address and the account you use on the server.</source>
        <translation>Geben Sie die Serveradresse und die Zugangsdaten Ihres Kontos auf dem Server ein.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Another server was found at the server address.</source>
        <translation>Unter der Serveradresse wurde ein anderer Server gefunden.</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>Verbindung zum Server wird hergestellt&#xa0;…</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Create share link</source>
        <translation>Freigabelink erstellen</translation>
    </message>
    <message>
        <source>The user name or password was not accepted by the server. Edit the connection and enter them again.</source>
        <translation>Der Benutzername oder das Passwort wurde vom Server nicht akzeptiert. Bearbeiten Sie die Verbindung und geben Sie beides erneut ein.</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Zuletzt aktualisierte Dateien</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Proxyeinstellungen des Systems verwenden</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>Ordner ändern&#xa0;…</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Abschließen</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Ordnerpfad</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Wird heruntergeladen&#xa0;…</translation>
    </message>
    <message>
        <source>File locked</source>
        <translation>Datei gesperrt</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Wird vorbereitet&#xa0;…</translation>
    </message>
    <message>
        <source>Syncing files...</source>
        <translation>Dateien werden synchronisiert&#xa0;…</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] kann jetzt installiert werden</translation>
    </message>
    <message>
        <source>Checking the user name and password...</source>
        <translation>Benutzername und Passwort werden überprüft&#xa0;…</translation>
    </message>
    <message>
        <source>Wait while the Setup Wizard makes the changes to [ProductName]. This can take several minutes.</source>
        <translation>Warten Sie, bis der Setup-Assistent die Änderungen an [ProductName] vorgenommen hat. Dies kann einige Minuten dauern.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Verwalten</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>The server ID is not valid. Check the server ID, then try again.</source>
        <translation>Die Server-ID ist ungültig. Prüfen Sie die Server-ID und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>Synchronisierungsordner öffnen</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Bei Doppelklick auf das Symbol im Infobereich</translation>
    </message>
    <message>
        <source>Syncing could not be turned on for this shared folder. Check your permissions on the server, then try again.</source>
        <translation>Die Synchronisierung konnte für diesen freigegebenen Ordner nicht aktiviert werden. Prüfen Sie Ihre Berechtigungen auf dem Server und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>File sharing over the relay is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>Die Dateifreigabe über das Relay ist auf dem Server deaktiviert. Bitten Sie den Serveradministrator, sie zu aktivieren.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Synchronisierung fortsetzen</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>The share link was copied to the clipboard.</source>
        <translation>Der Freigabelink wurde in die Zwischenablage kopiert.</translation>
    </message>
    <message>
        <source>The local sync folder was not found. Restore the folder, or choose another folder. See Sync tasks for its path.</source>
        <translation>Der lokale Synchronisierungsordner wurde nicht gefunden. Stellen Sie den Ordner wieder her oder wählen Sie einen anderen Ordner aus. Den Pfad finden Sie unter „Synchronisierungsaufgaben“.</translation>
    </message>
    <message>
        <source>Upgrade Quillmere</source>
        <translation>Quillmere aktualisieren</translation>
    </message>
    <message>
        <source>Add sync task...</source>
        <translation>Aufgabe hinzufügen&#xa0;…</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server. Ask the server administrator to mount it. See Shared folders for its name.</source>
        <translation>Der freigegebene Ordner ist auf dem Server nicht eingehängt. Bitten Sie den Serveradministrator, ihn einzuhängen. Den Namen finden Sie unter „Freigegebene Ordner“.</translation>
    </message>
    <message>
        <source>The server sent an unexpected response. Upgrade Quillmere on this computer, and ask the server administrator to upgrade it on the server. Details are in ~/.Quillmere/log.</source>
        <translation>Der Server hat eine unerwartete Antwort gesendet. Aktualisieren Sie Quillmere auf diesem Computer und bitten Sie den Serveradministrator, es auf dem Server zu aktualisieren. Details finden Sie in „~/.Quillmere/log“.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Serverübersicht</translation>
    </message>
    <message>
        <source>Syncing stopped because of a problem. Click here for details.</source>
        <translation>Die Synchronisierung wurde wegen eines Problems gestoppt. Klicken Sie hier, um Details anzuzeigen.</translation>
    </message>
    <message>
        <source>Enter a size of at most %1 MB.</source>
        <translation>Geben Sie eine Größe von höchstens %1&#xa0;MB ein.</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Dateien werden überprüft&#xa0;…</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Synchronisierung wird versucht&#xa0;…</translation>
    </message>
    <message>
        <source>Click Install to begin the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Klicken Sie auf „Installieren“, um mit der Installation von [ProductName] zu beginnen. Klicken Sie auf „Zurück“, um Ihre Auswahl zu überprüfen, oder auf „Abbrechen“, um den Setup-Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup was canceled</source>
        <translation>{\VerdanaBold13}Das Setup von [ProductName] wurde abgebrochen</translation>
    </message>
    <message>
        <source>The folder is not empty. Merge its files with those on the server, or choose another folder.</source>
        <translation>Der Ordner ist nicht leer. Führen Sie seine Dateien mit denen auf dem Server zusammen oder wählen Sie einen anderen Ordner aus.</translation>
    </message>
    <message>
        <source>This folder is being indexed. Its files will appear when indexing is complete.</source>
        <translation>Dieser Ordner wird gerade indiziert. Seine Dateien werden angezeigt, sobald die Indizierung abgeschlossen ist.</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Zusammenführen</translation>
    </message>
    <message>
        <source>You can open the files in this shared folder, but changes you make are not uploaded.</source>
        <translation>Sie können die Dateien in diesem freigegebenen Ordner öffnen, Ihre Änderungen werden jedoch nicht hochgeladen.</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Netzwerkeinstellungen</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder. Choose another folder.</source>
        <translation>Dieser Ordner wird bereits mit einem anderen freigegebenen Ordner synchronisiert. Wählen Sie einen anderen Ordner aus.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>The server has no free disk space.</source>
        <translation>Auf dem Server ist kein freier Speicherplatz vorhanden.</translation>
    </message>
    <message>
        <source>Relay by server ID</source>
        <translation>Relay über Server-ID</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Wählen Sie aus, was Sie tun möchten.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup did not finish</source>
        <translation>{\VerdanaBold13}Das Setup von [ProductName] wurde nicht abgeschlossen</translation>
    </message>
    <message>
        <source>Quillmere is already running.</source>
        <translation>Quillmere wird bereits ausgeführt.</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Willkommen</translation>
    </message>
    <message>
        <source>Start Quillmere when I sign in to this computer</source>
        <translation>Quillmere bei der Anmeldung an diesem Computer starten</translation>
    </message>
    <message>
        <source>All files from both folders are kept. If two versions of a file differ, both are kept under different names.</source>
        <translation>Alle Dateien aus beiden Ordnern bleiben erhalten. Wenn sich zwei Versionen einer Datei unterscheiden, bleiben beide unter verschiedenen Namen erhalten.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Installation reparieren</translation>
    </message>
    <message>
        <source>Syncing turned on</source>
        <translation>Synchronisierung aktiviert</translation>
    </message>
    <message>
        <source>Quillmere could not start. Restart the computer, then start Quillmere again. Details are in ~/.Quillmere/log.</source>
        <translation>Quillmere konnte nicht gestartet werden. Starten Sie den Computer neu und starten Sie dann Quillmere erneut. Details finden Sie in „~/.Quillmere/log“.</translation>
    </message>
    <message>
        <source>Cancel [ProductName] setup?</source>
        <translation>Setup von [ProductName] abbrechen?</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Trotzdem fortfahren</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] ändern, reparieren oder entfernen</translation>
    </message>
    <message>
        <source>Quillmere is set up</source>
        <translation>Quillmere ist eingerichtet</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Erweiterte Einstellungen</translation>
    </message>
    <message>
        <source>Browse versions...</source>
        <translation>Versionen durchsuchen&#xa0;…</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]Ä&amp;ndern</translation>
    </message>
    <message>
        <source>This computer is disconnected from the server. Reconnect to continue syncing.</source>
        <translation>Dieser Computer ist vom Server getrennt. Verbinden Sie ihn erneut, um die Synchronisierung fortzusetzen.</translation>
    </message>
    <message>
        <source>Detecting...</source>
        <translation>Wird ermittelt&#xa0;…</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Zertifikatswarnung</translation>
    </message>
    <message>
        <source>The relay service cannot be reached. Check the internet connection, then try again.</source>
        <translation>Der Relay-Dienst ist nicht erreichbar. Prüfen Sie die Internetverbindung und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Entfernt [ProductName] von Ihrem Computer.</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>„%1“ wird heruntergeladen&#xa0;…</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>Ab&amp;schließen</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Schreibgeschützter Ordner</translation>
    </message>
    <message>
        <source>[DlgTitleFont]You canceled setup, and your computer was not changed.</source>
        <translation>[DlgTitleFont]Sie haben das Setup abgebrochen. Ihr Computer wurde nicht verändert.</translation>
    </message>
    <message>
        <source>The port number is not valid. Enter a number from 1 to 65535.</source>
        <translation>Die Portnummer ist ungültig. Geben Sie eine Zahl von 1 bis 65535 ein.</translation>
    </message>
    <message>
        <source>Quillmere cannot watch for changes on a network drive. Choose a folder on a local drive.</source>
        <translation>Quillmere kann Änderungen auf einem Netzlaufwerk nicht überwachen. Wählen Sie einen Ordner auf einem lokalen Laufwerk aus.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Installation entfernen</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direktverbindung</translation>
    </message>
    <message>
        <source>The drive on the server that holds this folder is not mounted. Ask the server administrator to mount it. See Sync tasks for the folder.</source>
        <translation>Das Serverlaufwerk, auf dem sich dieser Ordner befindet, ist nicht eingehängt. Bitten Sie den Serveradministrator, es einzuhängen. Den Ordner finden Sie unter „Synchronisierungsaufgaben“.</translation>
    </message>
    <message>
        <source>This version of Quillmere is already installed. Install it again?</source>
        <translation>Diese Version von Quillmere ist bereits installiert. Erneut installieren?</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server. Upgrade it, then try again.</source>
        <translation>Quillmere auf diesem Computer ist zu alt, um mit dem Server zusammenzuarbeiten. Aktualisieren Sie Quillmere und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer.</source>
        <translation>Quillmere auf dem Server ist zu alt, um mit diesem Computer zusammenzuarbeiten.</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>Deaktiviert</translation>
    </message>
</context>
</TS>
