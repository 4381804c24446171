<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb_NO" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Velkommen til installasjonsveiviseren for [ProductName]</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>Start [ProductName] nå</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Delte mapper</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Alle filer er oppdatert.</translation>
    </message>
    <message>
        <source>Processing...</source>
        <translation>Behandler&#xa0;…</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Avslutt</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>Installasjonsveiviseren er klar til å starte installasjonen.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Filnavn</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Tilkoblingsmodus</translation>
    </message>
    <message>
        <source>The local database is damaged. Disconnect from the server, then reconnect to rebuild the database. Details are in ~/.Quillmere/log.</source>
        <translation>Den lokale databasen er skadet. Koble fra serveren, og koble deretter til igjen for å bygge opp databasen på nytt. Du finner detaljer i «~/.Quillmere/log».</translation>
    </message>
    <message>
        <source>&amp;Close the applications and restart them after setup</source>
        <translation>&amp;Lukk programmene, og start dem på nytt etterpå</translation>
    </message>
    <message>
        <source>The folder is a mount point. Choose a folder that is not a mount point.</source>
        <translation>Mappen er et monteringspunkt. Velg en mappe som ikke er et monteringspunkt.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Klar til å fjerne [ProductName]</translation>
    </message>
    <message>
        <source>The server has been replaced. Click here to reconnect.</source>
        <translation>Serveren er byttet ut. Klikk her for å koble til igjen.</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>Synkroniserer filer nå (antall: %1).</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change, repair, or remove [ProductName]. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>Med installasjonsveiviseren kan du endre, reparere eller fjerne [ProductName]. Klikk på «Neste» for å fortsette, eller klikk på «Avbryt» for å avslutte installasjonsveiviseren.</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <translation>Utelatelsesliste</translation>
    </message>
    <message>
        <source>Delete this share link?\nPeople who have the link will no longer be able to open the file.</source>
        <translation>Vil du slette denne delingslenken?\nPersoner som har lenken, vil ikke lenger kunne åpne filen.</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server.</source>
        <translation>Quillmere på denne datamaskinen er for gammel til å fungere sammen med serveren.</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Installasjonsprogram for [ProductName]</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Pålogging mislyktes</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versjon</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Tester tilkoblingen&#xa0;…</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted: it may have expired, belong to another server, or come from an unknown issuer. Others may be able to read the data you send. Continue?</source>
        <translation>Sertifikatet til serveren er ikke klarert: Det kan være utløpt, tilhøre en annen server eller komme fra en ukjent utsteder. Andre kan kanskje lese dataene du sender. Vil du fortsette?</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Ny delt mappe</translation>
    </message>
    <message>
        <source>About Quillmere</source>
        <translation>Om Quillmere</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done.</source>
        <translation>Kontroller innstillingene nedenfor, og klikk deretter på «Ferdig».</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Skriv ut</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the removal.</source>
        <translation>Installasjonsveiviseren er klar til å starte fjerningen.</translation>
    </message>
    <message>
        <source>This computer is already connected to this server. Edit the existing connection, or enter another server.</source>
        <translation>Denne datamaskinen er allerede koblet til denne serveren. Rediger den eksisterende tilkoblingen, eller angi en annen server.</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Nedlastingshistorikk</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Check the network connection, then try again.</source>
        <translation>Tilkoblingen til serveren ble brutt. Kontroller nettverkstilkoblingen, og prøv på nytt.</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified.</source>
        <translation>Sertifikatet til serveren kunne ikke verifiseres.</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Bruk svart-hvitt ikon i systemstatusfeltet</translation>
    </message>
    <message>
        <source>The files in this folder will be synced with the server.</source>
        <translation>Filene i denne mappen blir synkronisert med serveren.</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <translation>Proxyserveren krever pålogging</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synkroniseringsoppgaver</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Utelatte filer</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Ingen tillatelse</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer. Ask the server administrator to upgrade it.</source>
        <translation>Quillmere på serveren er for gammel til å fungere sammen med denne datamaskinen. Be serveradministratoren om å oppgradere Quillmere.</translation>
    </message>
    <message>
        <source>You can run setup again at any time. Click Finish to exit the Setup Wizard.</source>
        <translation>Du kan kjøre installasjonsprogrammet på nytt når som helst. Klikk på «Fullfør» for å avslutte installasjonsveiviseren.</translation>
    </message>
    <message>
        <source>The connection to the server is unstable.</source>
        <translation>Tilkoblingen til serveren er ustabil.</translation>
    </message>
    <message>
        <source>A newer version of Quillmere is already installed. To install this version, remove the newer one first.</source>
        <translation>En nyere versjon av Quillmere er allerede installert. Du må fjerne den nyere versjonen før du kan installere denne versjonen.</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Klikk på «Reparer» for å reparere installasjonen av [ProductName]. Klikk på «Tilbake» for å se gjennom valgene dine, eller klikk på «Avbryt» for å avslutte installasjonsveiviseren.</translation>
    </message>
    <message>
        <source>Some settings have not been saved. Save them?</source>
        <translation>Noen innstillinger er ikke lagret. Vil du lagre dem?</translation>
    </message>
    <message>
        <source>Icon overlays on files</source>
        <translation>Ikonoverlegg på filer</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Handling</translation>
    </message>
    <message>
        <source>This folder is already used by another sync program. Choose another folder to avoid conflicts.</source>
        <translation>Denne mappen brukes allerede av et annet synkroniseringsprogram. Velg en annen mappe for å unngå konflikter.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Slett</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>Inkompatibel versjon</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Bytt synkroniseringsmappe</translation>
    </message>
    <message>
        <source>Enter a complete file name without a folder path, for example thumbs.db.</source>
        <translation>Skriv inn et fullstendig filnavn uten mappebane, for eksempel «thumbs.db».</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Setup stopped because of an error. The changes it had made were undone.</source>
        <translation>[DlgTitleFont]Installasjonsprogrammet stoppet på grunn av en feil. Endringene det hadde gjort, er angret.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Ventemodus</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>Installasjonsveiviseren installerer [ProductName] på datamaskinen. Klikk på «Neste» for å fortsette, eller klikk på «Avbryt» for å avslutte installasjonsveiviseren.</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Synkroniseringsproblem</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>Les følgende lisensavtale nøye.</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>Mappen er ikke tom</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Navn</translation>
    </message>
    <message>
        <source>Use an encrypted connection (TLS)</source>
        <translation>Bruk en kryptert tilkobling (TLS)</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Noen filer som må oppdateres, er i bruk.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Skrivebeskyttet</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjelp</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>A new version of Quillmere is available. Click here to upgrade.</source>
        <translation>En ny versjon av Quillmere er tilgjengelig. Klikk her for å oppgradere.</translation>
    </message>
    <message>
        <source>The download of %1 was canceled.</source>
        <translation>Nedlastingen av «%1» ble avbrutt.</translation>
    </message>
    <message>
        <source>The value you entered is not valid. Check it, then try again.</source>
        <translation>Verdien du skrev inn, er ikke gyldig. Kontroller den, og prøv på nytt.</translation>
    </message>
    <message>
        <source>This file has no earlier versions yet. Change the file and let it sync to create one.</source>
        <translation>Denne filen har ingen tidligere versjoner ennå. Endre filen, og la den bli synkronisert for å opprette en.</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Koble fra</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tilbake</translation>
    </message>
    <message>
        <source>Quillmere is initializing...</source>
        <translation>Initialiserer Quillmere&#xa0;…</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Start nå</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Sett synkronisering på pause</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Flettemodus</translation>
    </message>
    <message>
        <source>Quillmere is ready.</source>
        <translation>Quillmere er klar.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tidspunkt</translation>
    </message>
    <message>
        <source>This version could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>Denne versjonen kunne ikke lastes ned. Kontroller tilkoblingen til serveren, og prøv på nytt.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Tar i bruk innstillingene&#xa0;…</translation>
    </message>
    <message>
        <source>Files excluded from syncing</source>
        <translation>Filer som er utelatt fra synkronisering</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Opprettet</translation>
    </message>
    <message>
        <source>The Quillmere service is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>Quillmere-tjenesten er slått av på serveren. Be serveradministratoren om å slå den på.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internett</translation>
    </message>
    <message>
        <source>Choose shared folders to sync</source>
        <translation>Velg delte mapper som skal synkroniseres</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]&amp;Fjern</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Laster opp&#xa0;…</translation>
    </message>
    <message>
        <source>To use selective sync, ask the server administrator to upgrade Quillmere on the server.</source>
        <translation>Hvis du vil bruke selektiv synkronisering, må du be serveradministratoren om å oppgradere Quillmere på serveren.</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Ingen innstillinger er endret.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]Filer i bruk</translation>
    </message>
    <message>
        <source>Repairs errors in the installation of [ProductName] by restoring missing or damaged files and shortcuts.</source>
        <translation>Reparerer feil i installasjonen av [ProductName] ved å gjenopprette manglende eller skadede filer og snarveier.</translation>
    </message>
    <message>
        <source>Excluded file extensions</source>
        <translation>Utelatte filendelser</translation>
    </message>
    <message>
        <source>Syncing is paused.</source>
        <translation>Synkroniseringen er satt på pause.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome back to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Velkommen tilbake til installasjonsveiviseren for [ProductName]</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passord</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is not mounted. Mount the drive, then resume syncing. See Sync tasks for the folder.</source>
        <translation>Stasjonen med synkroniseringsmappen er ikke montert. Monter stasjonen, og gjenoppta deretter synkroniseringen. Mappen vises under «Synkroniseringsoppgaver».</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Rediger</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full.</source>
        <translation>Stasjonen med synkroniseringsmappen er full.</translation>
    </message>
    <message>
        <source>Proxy server address</source>
        <translation>Adresse til proxyserveren</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Prøv på nytt</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorer</translation>
    </message>
    <message>
        <source>A folder with this name already exists on this computer. Merge its files with those on the server?</source>
        <translation>Det finnes allerede en mappe med dette navnet på denne datamaskinen. Vil du flette filene i den med filene på serveren?</translation>
    </message>
    <message>
        <source>Quillmere keeps your files in sync between your computers and your server.</source>
        <translation>Quillmere holder filene dine synkronisert mellom datamaskinene dine og serveren din.</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Endre de installerte funksjonene</translation>
    </message>
    <message>
        <source>Welcome to Quillmere</source>
        <translation>Velkommen til Quillmere</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Reparer</translation>
    </message>
    <message>
        <source>Upgrading Quillmere...</source>
        <translation>Oppgraderer Quillmere&#xa0;…</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Synkroniseringsmodus</translation>
    </message>
    <message>
        <source>Enter a domain name, an IP address, or a server ID.</source>
        <translation>Skriv inn et domenenavn, en IP-adresse eller en server-ID.</translation>
    </message>
    <message>
        <source>A share link could not be created for this file. Check the connection to the server, then try again.</source>
        <translation>Det kunne ikke opprettes en delingslenke for denne filen. Kontroller tilkoblingen til serveren, og prøv på nytt.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Bruk</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Ferdig</translation>
    </message>
    <message>
        <source>Files being synced: %1</source>
        <translation>Filer som synkroniseres: %1</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Koble til igjen</translation>
    </message>
    <message>
        <source>Your files, in sync everywhere</source>
        <translation>Filene dine, synkronisert overalt</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Mål</translation>
    </message>
    <message>
        <source>The Setup Wizard is making the changes you chose.</source>
        <translation>Installasjonsveiviseren utfører de valgte endringene.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>The folders and files you deselected will be removed from this computer. They will be kept on the server.</source>
        <translation>Mappene og filene du valgte bort, blir fjernet fra denne datamaskinen. De beholdes på serveren.</translation>
    </message>
    <message>
        <source>Setup made all the changes you chose. Click Finish to exit the Setup Wizard.</source>
        <translation>Installasjonsprogrammet har utført alle de valgte endringene. Klikk på «Fullfør» for å avslutte installasjonsveiviseren.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Klikk på «Fjern» for å fjerne [ProductName] fra datamaskinen. Klikk på «Tilbake» for å se gjennom valgene dine, eller klikk på «Avbryt» for å avslutte installasjonsveiviseren.</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>Ingen plass igjen</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Frakoblet</translation>
    </message>
    <message>
        <source>You have used all of your space on the server.</source>
        <translation>Du har brukt all plassen din på serveren.</translation>
    </message>
    <message>
        <source>Disconnect from the server?\nYour files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>Vil du koble fra serveren?\nFilene dine beholdes på denne datamaskinen og på serveren, men de blir ikke lenger synkronisert.</translation>
    </message>
    <message>
        <source>The relay service has a problem. Try again later, or connect to the server by its IP address.</source>
        <translation>Det er et problem med relétjenesten. Prøv på nytt senere, eller koble til serveren via IP-adressen.</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>Server-ID</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Utelatte filnavn</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Serveradresse</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsett</translation>
    </message>
    <message>
        <source>Turned on</source>
        <translation>Slått på</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full. Free some space on it to continue syncing.</source>
        <translation>Stasjonen med synkroniseringsmappen er full. Frigjør plass på den for å fortsette synkroniseringen.</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Mapper som skal synkroniseres</translation>
    </message>
    <message>
        <source>Choose sync folder</source>
        <translation>Velg synkroniseringsmappe</translation>
    </message>
    <message>
        <source>Connection settings</source>
        <translation>Tilkoblingsinnstillinger</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selektiv synkronisering</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Datamaskin</translation>
    </message>
    <message>
        <source>You have used all of your space on the server. Delete files you do not need, or ask the server administrator for more space.</source>
        <translation>Du har brukt all plassen din på serveren. Slett filer du ikke trenger, eller be serveradministratoren om mer plass.</translation>
    </message>
    <message>
        <source>After you start [ProductName], you can find it in the system tray.</source>
        <translation>Når du har startet [ProductName], finner du programmet i systemstatusfeltet.</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open and restart the computer later</source>
        <translation>La programmene &amp;være åpne, og start datamaskinen på nytt senere</translation>
    </message>
    <message>
        <source>Use the following proxy server</source>
        <translation>Bruk følgende proxyserver</translation>
    </message>
    <message>
        <source>This file was changed on this computer and on the server. Both copies are in the same folder under different names. Compare them, then keep the one you need.</source>
        <translation>Denne filen ble endret både på denne datamaskinen og på serveren. Begge kopiene ligger i samme mappe under forskjellige navn. Sammenlign dem, og behold den du trenger.</translation>
    </message>
    <message>
        <source>All your files on every computer, kept on your own server</source>
        <translation>Alle filene dine på alle datamaskiner, lagret på din egen server</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Vis skrivebordsvarsler</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Close them, then click Retry. To continue without closing them, click Ignore. To leave setup, click Exit.</source>
        <translation>Følgende programmer bruker filer som installasjonsprogrammet må oppdatere. Lukk dem, og klikk deretter på «Prøv på nytt». Klikk på «Ignorer» for å fortsette uten å lukke dem. Klikk på «Avslutt» for å avslutte installasjonsprogrammet.</translation>
    </message>
    <message>
        <source>The server cannot be reached. Check the network connection and the server address, then try again.</source>
        <translation>Serveren kan ikke nås. Kontroller nettverkstilkoblingen og serveradressen, og prøv på nytt.</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Lokal synkroniseringsmappe</translation>
    </message>
    <message>
        <source>Files that match an entry in this list are not synced.</source>
        <translation>Filer som samsvarer med en oppføring i denne listen, synkroniseres ikke.</translation>
    </message>
    <message>
        <source>Edit connection...</source>
        <translation>Rediger tilkobling&#xa0;…</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Innstillinger</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Choose whether setup should close them. If they stay open, you need to restart the computer to finish setup.</source>
        <translation>Følgende programmer bruker filer som installasjonsprogrammet må oppdatere. Velg om installasjonsprogrammet skal lukke dem. Hvis de forblir åpne, må du starte datamaskinen på nytt for å fullføre endringene.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair.</source>
        <translation>Installasjonsveiviseren er klar til å starte reparasjonen.</translation>
    </message>
    <message>
        <source>Open Quillmere</source>
        <translation>Åpne Quillmere</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Start %1 på nytt for å ta i bruk de nye språkinnstillingene.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Sett på pause</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>Vis ikonoverlegg på utelatte filer</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Laster inn&#xa0;…</translation>
    </message>
    <message>
        <source>The limit of synced shared folders is reached: %1. Stop syncing a shared folder before you add another.</source>
        <translation>Grensen for synkroniserte delte mapper er nådd: %1. Slutt å synkronisere en delt mappe før du legger til en annen.</translation>
    </message>
    <message>
        <source>Remove this sync task?\nIts files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>Vil du fjerne denne synkroniseringsoppgaven?\nFilene i den beholdes på denne datamaskinen og på serveren, men de blir ikke lenger synkronisert.</translation>
    </message>
    <message>
        <source>Starting Quillmere...</source>
        <translation>Starter Quillmere&#xa0;…</translation>
    </message>
    <message>
        <source>Quillmere could not be upgraded. Your earlier version was kept. Restart the computer, then try again. Details are in ~/.Quillmere/log.</source>
        <translation>Quillmere kunne ikke oppgraderes. Den tidligere versjonen er beholdt. Start datamaskinen på nytt, og prøv igjen. Du finner detaljer i «~/.Quillmere/log».</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>Utelat navn som begynner med punktum</translation>
    </message>
    <message>
        <source>The server has no free disk space. Ask the server administrator to free some space.</source>
        <translation>Serveren har ingen ledig diskplass. Be serveradministratoren om å frigjøre plass.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]License agreement</source>
        <translation>[DlgTitleFont]Lisensavtale</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>«%1» ble lastet ned.</translation>
    </message>
    <message>
        <source>The versions of this file could not be listed. Check the connection to the server, then try again.</source>
        <translation>Versjonene av denne filen kunne ikke vises. Kontroller tilkoblingen til serveren, og prøv på nytt.</translation>
    </message>
    <message>
        <source>Connected to the server.</source>
        <translation>Koblet til serveren.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup is complete</source>
        <translation>{\VerdanaBold13}Installasjonsprogrammet for [ProductName] er ferdig</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokalt nettverk</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Ikke bruk proxyserver</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Fant ikke delt mappe</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Neste</translation>
    </message>
    <message>
        <source>Parvenor Quillmere</source>
        <translation>Parvenor Quillmere</translation>
    </message>
    <message>
        <source>%1 could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>«%1» kunne ikke lastes ned. Kontroller tilkoblingen til serveren, og prøv på nytt.</translation>
    </message>
    <message>
        <source>Watching for file changes...</source>
        <translation>Overvåker filendringer&#xa0;…</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Delt mappe</translation>
    </message>
    <message>
        <source>Quillmere settings</source>
        <translation>Innstillinger for Quillmere</translation>
    </message>
    <message>
        <source>The share link could not be deleted. Check the connection to the server, then try again.</source>
        <translation>Delingslenken kunne ikke slettes. Kontroller tilkoblingen til serveren, og prøv på nytt.</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified: it may have expired, belong to another server, or come from an unknown issuer. Ask the server administrator to check the certificate.</source>
        <translation>Sertifikatet til serveren kunne ikke verifiseres: Det kan være utløpt, tilhøre en annen server eller komme fra en ukjent utsteder. Be serveradministratoren om å kontrollere sertifikatet.</translation>
    </message>
    <message>
        <source>This is not the server that this computer was connected to. Check the server address, or reconnect.</source>
        <translation>Dette er ikke serveren som denne datamaskinen var koblet til. Kontroller serveradressen, eller koble til igjen.</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>[ProductName] har ingen funksjoner som kan endres hver for seg.</translation>
    </message>
    <message>
        <source>The address or port of the proxy server is missing. Enter both, then try again.</source>
        <translation>Adressen eller porten til proxyserveren mangler. Angi begge deler, og prøv på nytt.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>The user name is missing. Enter a user name.</source>
        <translation>Brukernavnet mangler. Skriv inn et brukernavn.</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Slett lenke</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Feil</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>Jeg &amp;godtar vilkårene i lisensavtalen</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>Oppdatert: %1</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Administrer tilkoblinger</translation>
    </message>
    <message>
        <source>Connect to another server...</source>
        <translation>Koble til en annen server&#xa0;…</translation>
    </message>
    <message>
        <source>Show icon overlays</source>
        <translation>Vis ikonoverlegg</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Making changes to [ProductName]</source>
        <translation>[DlgTitleFont]Gjør endringer i [ProductName]</translation>
    </message>
    <message>
        <source>Service turned off</source>
        <translation>Tjenesten er slått av</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synkroniser</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder?\nThe files already on this computer will be kept.</source>
        <translation>Vil du slutte å synkronisere denne delte mappen?\nFilene som allerede er på denne datamaskinen, beholdes.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installer</translation>
    </message>
    <message>
        <source>Files to exclude</source>
        <translation>Filer som skal utelates</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>Statusdetaljer</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>Jeg godtar i&amp;kke vilkårene i lisensavtalen</translation>
    </message>
    <message>
        <source>Something went wrong. Try again, and contact the server administrator if the problem continues. Details are in ~/.Quillmere/log.</source>
        <translation>Noe gikk galt. Prøv på nytt, og kontakt serveradministratoren hvis problemet vedvarer. Du finner detaljer i «~/.Quillmere/log».</translation>
    </message>
    <message>
        <source>Tray icons</source>
        <translation>Ikoner i systemstatusfeltet</translation>
    </message>
    <message>
        <source>The folder is read-only. Choose a folder you can write to.</source>
        <translation>Mappen er skrivebeskyttet. Velg en mappe du kan skrive til.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Neste</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Tilbake</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxyinnstillinger</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so Quillmere might not install completely. Continue?</source>
        <translation>Du er ikke pålogget som administrator, så Quillmere blir kanskje ikke fullstendig installert. Vil du fortsette?</translation>
    </message>
    <message>
        <source>Use the tray icon at any time to see the sync status or change the settings.</source>
        <translation>Du kan når som helst bruke ikonet i systemstatusfeltet til å se synkroniseringsstatusen eller endre innstillingene.</translation>
    </message>
    <message>
        <source>Share link created</source>
        <translation>Delingslenke opprettet</translation>
    </message>
    <message>
        <source>The user name or password is not correct. Check both, then try again.</source>
        <translation>Brukernavnet eller passordet er feil. Kontroller begge deler, og prøv på nytt.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Klar til å reparere [ProductName]</translation>
    </message>
    <message>
        <source>The shared folder %1 is now available. Click here to sync it.</source>
        <translation>Den delte mappen «%1» er nå tilgjengelig. Klikk her for å synkronisere den.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Størrelse</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>Tilkoblingsinformasjon</translation>
    </message>
    <message>
        <source>Lets you choose which features are installed.</source>
        <translation>Her kan du velge hvilke funksjoner som skal installeres.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mappenavn</translation>
    </message>
    <message>
        <source>Folder is a mount point</source>
        <translation>Mappen er et monteringspunkt</translation>
    </message>
    <message>
        <source>Choose another folder...</source>
        <translation>Velg en annen mappe&#xa0;…</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Bare nedlasting</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Repair</source>
        <translation>[DlgTitleFont]&amp;Reparer</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Fjern</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maksimal filstørrelse</translation>
    </message>
    <message>
        <source>Enter the server address and the account you use on the server.</source>
        <translation>Skriv inn serveradressen og kontoen du bruker på serveren.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Fjern</translation>
    </message>
    <message>
        <source>Another server was found at the server address.</source>
        <translation>En annen server ble funnet på serveradressen.</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>Kobler til serveren&#xa0;…</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Create share link</source>
        <translation>Opprett delingslenke</translation>
    </message>
    <message>
        <source>The user name or password was not accepted by the server. Edit the connection and enter them again.</source>
        <translation>Brukernavnet eller passordet ble ikke godtatt av serveren. Rediger tilkoblingen, og skriv dem inn på nytt.</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Nylig oppdaterte filer</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Bruk proxyinnstillingene for systemet</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>Bytt mappe&#xa0;…</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Fullfør</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappebane</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Laster ned&#xa0;…</translation>
    </message>
    <message>
        <source>File locked</source>
        <translation>Filen er låst</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Forbereder&#xa0;…</translation>
    </message>
    <message>
        <source>Syncing files...</source>
        <translation>Synkroniserer filer&#xa0;…</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Klar til å installere [ProductName]</translation>
    </message>
    <message>
        <source>Checking the user name and password...</source>
        <translation>Kontrollerer brukernavn og passord&#xa0;…</translation>
    </message>
    <message>
        <source>Wait while the Setup Wizard makes the changes to [ProductName]. This can take several minutes.</source>
        <translation>Vent mens installasjonsveiviseren gjør endringene i [ProductName]. Dette kan ta flere minutter.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Administrer</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>The server ID is not valid. Check the server ID, then try again.</source>
        <translation>Server-ID-en er ikke gyldig. Kontroller server-ID-en, og prøv på nytt.</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>Åpne synkroniseringsmappen</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Ved dobbeltklikk på ikonet i systemstatusfeltet</translation>
    </message>
    <message>
        <source>Syncing could not be turned on for this shared folder. Check your permissions on the server, then try again.</source>
        <translation>Synkronisering kunne ikke slås på for denne delte mappen. Kontroller tillatelsene dine på serveren, og prøv på nytt.</translation>
    </message>
    <message>
        <source>File sharing over the relay is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>Fildeling via reléet er slått av på serveren. Be serveradministratoren om å slå den på.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Legg til</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Verdi</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Gjenoppta synkronisering</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Avslutt</translation>
    </message>
    <message>
        <source>The share link was copied to the clipboard.</source>
        <translation>Delingslenken ble kopiert til utklippstavlen.</translation>
    </message>
    <message>
        <source>The local sync folder was not found. Restore the folder, or choose another folder. See Sync tasks for its path.</source>
        <translation>Den lokale synkroniseringsmappen ble ikke funnet. Gjenopprett mappen, eller velg en annen mappe. Banen vises under «Synkroniseringsoppgaver».</translation>
    </message>
    <message>
        <source>Upgrade Quillmere</source>
        <translation>Oppgrader Quillmere</translation>
    </message>
    <message>
        <source>Add sync task...</source>
        <translation>Legg til oppgave&#xa0;…</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server. Ask the server administrator to mount it. See Shared folders for its name.</source>
        <translation>Den delte mappen er ikke montert på serveren. Be serveradministratoren om å montere den. Navnet vises under «Delte mapper».</translation>
    </message>
    <message>
        <source>The server sent an unexpected response. Upgrade Quillmere on this computer, and ask the server administrator to upgrade it on the server. Details are in ~/.Quillmere/log.</source>
        <translation>Serveren sendte et uventet svar. Oppgrader Quillmere på denne datamaskinen, og be serveradministratoren om å oppgradere Quillmere på serveren. Du finner detaljer i «~/.Quillmere/log».</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Serveroversikt</translation>
    </message>
    <message>
        <source>Syncing stopped because of a problem. Click here for details.</source>
        <translation>Synkroniseringen stoppet på grunn av et problem. Klikk her for å se detaljer.</translation>
    </message>
    <message>
        <source>Enter a size of at most %1 MB.</source>
        <translation>Skriv inn en størrelse på høyst %1&#xa0;MB.</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Kontrollerer filer&#xa0;…</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Prøver å synkronisere&#xa0;…</translation>
    </message>
    <message>
        <source>Click Install to begin the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Klikk på «Installer» for å starte installasjonen av [ProductName]. Klikk på «Tilbake» for å se gjennom valgene dine, eller klikk på «Avbryt» for å avslutte installasjonsveiviseren.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup was canceled</source>
        <translation>{\VerdanaBold13}Installasjonsprogrammet for [ProductName] ble avbrutt</translation>
    </message>
    <message>
        <source>The folder is not empty. Merge its files with those on the server, or choose another folder.</source>
        <translation>Mappen er ikke tom. Flett filene i den med filene på serveren, eller velg en annen mappe.</translation>
    </message>
    <message>
        <source>This folder is being indexed. Its files will appear when indexing is complete.</source>
        <translation>Denne mappen blir indeksert. Filene i den vises når indekseringen er ferdig.</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Brukernavn</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Flett</translation>
    </message>
    <message>
        <source>You can open the files in this shared folder, but changes you make are not uploaded.</source>
        <translation>Du kan åpne filene i denne delte mappen, men endringer du gjør, blir ikke lastet opp.</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Nettverksinnstillinger</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder. Choose another folder.</source>
        <translation>Denne mappen synkroniseres allerede med en annen delt mappe. Velg en annen mappe.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Gjenoppta</translation>
    </message>
    <message>
        <source>The server has no free disk space.</source>
        <translation>Serveren har ingen ledig diskplass.</translation>
    </message>
    <message>
        <source>Relay by server ID</source>
        <translation>Relé via server-ID</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nei</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Velg hva du vil gjøre.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup did not finish</source>
        <translation>{\VerdanaBold13}Installasjonsprogrammet for [ProductName] ble ikke fullført</translation>
    </message>
    <message>
        <source>Quillmere is already running.</source>
        <translation>Quillmere kjører allerede.</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Velkommen</translation>
    </message>
    <message>
        <source>Start Quillmere when I sign in to this computer</source>
        <translation>Start Quillmere når jeg logger på denne datamaskinen</translation>
    </message>
    <message>
        <source>All files from both folders are kept. If two versions of a file differ, both are kept under different names.</source>
        <translation>Alle filene fra begge mappene beholdes. Hvis to versjoner av en fil er forskjellige, beholdes begge under forskjellige navn.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Reparer installasjonen</translation>
    </message>
    <message>
        <source>Syncing turned on</source>
        <translation>Synkronisering slått på</translation>
    </message>
    <message>
        <source>Quillmere could not start. Restart the computer, then start Quillmere again. Details are in ~/.Quillmere/log.</source>
        <translation>Quillmere kunne ikke starte. Start datamaskinen på nytt, og start deretter Quillmere igjen. Du finner detaljer i «~/.Quillmere/log».</translation>
    </message>
    <message>
        <source>Cancel [ProductName] setup?</source>
        <translation>Vil du avbryte installasjonsprogrammet for [ProductName]?</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Fortsett likevel</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove [ProductName]</source>
        <translation>[DlgTitleFont]Endre, reparer eller fjern [ProductName]</translation>
    </message>
    <message>
        <source>Quillmere is set up</source>
        <translation>Quillmere er konfigurert</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Språk</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Avanserte innstillinger</translation>
    </message>
    <message>
        <source>Browse versions...</source>
        <translation>Bla gjennom versjoner&#xa0;…</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]&amp;Endre</translation>
    </message>
    <message>
        <source>This computer is disconnected from the server. Reconnect to continue syncing.</source>
        <translation>Denne datamaskinen er koblet fra serveren. Koble til igjen for å fortsette synkroniseringen.</translation>
    </message>
    <message>
        <source>Detecting...</source>
        <translation>Undersøker&#xa0;…</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Sertifikatadvarsel</translation>
    </message>
    <message>
        <source>The relay service cannot be reached. Check the internet connection, then try again.</source>
        <translation>Relétjenesten kan ikke nås. Kontroller internettilkoblingen, og prøv på nytt.</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Fjerner [ProductName] fra datamaskinen.</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>Laster ned «%1»&#xa0;…</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Fullfør</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Skrivebeskyttet mappe</translation>
    </message>
    <message>
        <source>[DlgTitleFont]You canceled setup, and your computer was not changed.</source>
        <translation>[DlgTitleFont]Du avbrøt installasjonsprogrammet, og det er ikke gjort endringer på datamaskinen.</translation>
    </message>
    <message>
        <source>The port number is not valid. Enter a number from 1 to 65535.</source>
        <translation>Portnummeret er ikke gyldig. Skriv inn et tall fra 1 til 65535.</translation>
    </message>
    <message>
        <source>Quillmere cannot watch for changes on a network drive. Choose a folder on a local drive.</source>
        <translation>Quillmere kan ikke overvåke endringer på en nettverksstasjon. Velg en mappe på en lokal stasjon.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Fjern installasjonen</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direkte tilkobling</translation>
    </message>
    <message>
        <source>The drive on the server that holds this folder is not mounted. Ask the server administrator to mount it. See Sync tasks for the folder.</source>
        <translation>Stasjonen på serveren som inneholder denne mappen, er ikke montert. Be serveradministratoren om å montere den. Mappen vises under «Synkroniseringsoppgaver».</translation>
    </message>
    <message>
        <source>This version of Quillmere is already installed. Install it again?</source>
        <translation>Denne versjonen av Quillmere er allerede installert. Vil du installere den på nytt?</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server. Upgrade it, then try again.</source>
        <translation>Quillmere på denne datamaskinen er for gammel til å fungere sammen med serveren. Oppgrader Quillmere, og prøv på nytt.</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer.</source>
        <translation>Quillmere på serveren er for gammel til å fungere sammen med denne datamaskinen.</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>Slått av</translation>
    </message>
</context>
</TS>
