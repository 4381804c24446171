<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="da_DK" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Velkommen til installationsguiden til [ProductName]</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>Start [ProductName] nu</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Delte mapper</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Alle filer er opdaterede.</translation>
    </message>
    <message>
        <source>Processing...</source>
        <translation>Behandler...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Afslut</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>Installationsguiden er klar til at begynde installationen.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Filnavn</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Forbindelsestilstand</translation>
    </message>
    <message>
        <source>The local database is damaged. Disconnect from the server, then reconnect to rebuild the database. Details are in ~/.Quillmere/log.</source>
        <translation>Den lokale database er beskadiget. Afbryd forbindelsen til serveren, og forbind derefter igen for at genopbygge databasen. Du finder detaljer i ”~/.Quillmere/log”.</translation>
    </message>
    <message>
        <source>&amp;Close the applications and restart them after setup</source>
        <translation>&amp;Luk programmerne, og genstart dem bagefter</translation>
    </message>
    <message>
        <source>The folder is a mount point. Choose a folder that is not a mount point.</source>
        <translation>Mappen er et monteringspunkt. Vælg en mappe der ikke er et monteringspunkt.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Klar til at fjerne [ProductName]</translation>
    </message>
    <message>
        <source>The server has been replaced. Click here to reconnect.</source>
        <translation>Serveren er blevet udskiftet. Klik her for at forbinde igen.</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>Antal filer der synkroniseres i øjeblikket: %1.</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change, repair, or remove [ProductName]. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>Med installationsguiden kan du ændre, reparere eller fjerne [ProductName]. Klik på ”Næste” for at fortsætte, eller klik på ”Annuller” for at afslutte installationsguiden.</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <translation>Udelukkelsesliste</translation>
    </message>
    <message>
        <source>Delete this share link?\nPeople who have the link will no longer be able to open the file.</source>
        <translation>Vil du slette dette delingslink?\nPersoner der har linket, kan derefter ikke længere åbne filen.</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server.</source>
        <translation>Quillmere på denne computer er for gammel til at fungere sammen med serveren.</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Installationsprogram til [ProductName]</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Login mislykkedes</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Tester forbindelsen...</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted: it may have expired, belong to another server, or come from an unknown issuer. Others may be able to read the data you send. Continue?</source>
        <translation>Serverens certifikat er ikke betroet: det kan være udløbet, tilhøre en anden server eller komme fra en ukendt udsteder. Andre kan muligvis læse de data du sender. Vil du fortsætte?</translation>
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
        <translation>Kontroller indstillingerne nedenfor, og klik derefter på ”Færdig”.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Udskriv</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the removal.</source>
        <translation>Installationsguiden er klar til at begynde fjernelsen.</translation>
    </message>
    <message>
        <source>This computer is already connected to this server. Edit the existing connection, or enter another server.</source>
        <translation>Denne computer er allerede forbundet til denne server. Rediger den eksisterende forbindelse, eller angiv en anden server.</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Downloadhistorik</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Check the network connection, then try again.</source>
        <translation>Forbindelsen til serveren gik tabt. Kontroller netværksforbindelsen, og prøv igen.</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified.</source>
        <translation>Serverens certifikat kunne ikke bekræftes.</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Brug et sort-hvidt ikon i meddelelsesområdet</translation>
    </message>
    <message>
        <source>The files in this folder will be synced with the server.</source>
        <translation>Filerne i denne mappe bliver synkroniseret med serveren.</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <translation>Proxyserveren kræver login</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synkroniseringsopgaver</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Udelukkede filer</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Ingen tilladelse</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer. Ask the server administrator to upgrade it.</source>
        <translation>Quillmere på serveren er for gammel til at fungere sammen med denne computer. Bed serveradministratoren om at opgradere Quillmere.</translation>
    </message>
    <message>
        <source>You can run setup again at any time. Click Finish to exit the Setup Wizard.</source>
        <translation>Du kan køre installationsprogrammet igen når som helst. Klik på ”Slut” for at afslutte installationsguiden.</translation>
    </message>
    <message>
        <source>The connection to the server is unstable.</source>
        <translation>Forbindelsen til serveren er ustabil.</translation>
    </message>
    <message>
        <source>A newer version of Quillmere is already installed. To install this version, remove the newer one first.</source>
        <translation>En nyere version af Quillmere er allerede installeret. Fjern først den nyere version for at installere denne.</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Klik på ”Reparer” for at reparere installationen af [ProductName]. Klik på ”Tilbage” for at gennemse dine valg, eller klik på ”Annuller” for at afslutte installationsguiden.</translation>
    </message>
    <message>
        <source>Some settings have not been saved. Save them?</source>
        <translation>Nogle indstillinger er ikke blevet gemt. Vil du gemme dem?</translation>
    </message>
    <message>
        <source>Icon overlays on files</source>
        <translation>Ikonoverlejringer på filer</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Handling</translation>
    </message>
    <message>
        <source>This folder is already used by another sync program. Choose another folder to avoid conflicts.</source>
        <translation>Denne mappe bruges allerede af et andet synkroniseringsprogram. Vælg en anden mappe for at undgå konflikter.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Slet</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>Inkompatibel version</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Skift synkroniseringsmappe</translation>
    </message>
    <message>
        <source>Enter a complete file name without a folder path, for example thumbs.db.</source>
        <translation>Angiv et fuldstændigt filnavn uden mappesti, for eksempel ”thumbs.db”.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Setup stopped because of an error. The changes it had made were undone.</source>
        <translation>[DlgTitleFont]Installationsprogrammet stoppede på grund af en fejl. De ændringer det havde foretaget, er rullet tilbage.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Standby</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>Installationsguiden installerer [ProductName] på din computer. Klik på ”Næste” for at fortsætte, eller klik på ”Annuller” for at afslutte installationsguiden.</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Synkroniseringsproblem</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>Læs følgende licensaftale omhyggeligt.</translation>
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
        <translation>Brug en krypteret forbindelse (TLS)</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Nogle filer der skal opdateres, er i brug.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Skrivebeskyttet</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjælp</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>A new version of Quillmere is available. Click here to upgrade.</source>
        <translation>Der er en ny version af Quillmere. Klik her for at opgradere.</translation>
    </message>
    <message>
        <source>The download of %1 was canceled.</source>
        <translation>Download af ”%1” blev annulleret.</translation>
    </message>
    <message>
        <source>The value you entered is not valid. Check it, then try again.</source>
        <translation>Den angivne værdi er ikke gyldig. Kontroller den, og prøv igen.</translation>
    </message>
    <message>
        <source>This file has no earlier versions yet. Change the file and let it sync to create one.</source>
        <translation>Denne fil har ingen tidligere versioner endnu. Ændr filen, og lad den blive synkroniseret for at oprette en.</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Afbryd forbindelse</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tilbage</translation>
    </message>
    <message>
        <source>Quillmere is initializing...</source>
        <translation>Initialiserer Quillmere...</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Start nu</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Sæt synkronisering på pause</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Flettetilstand</translation>
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
        <translation>Denne version kunne ikke downloades. Kontroller forbindelsen til serveren, og prøv igen.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Anvender indstillingerne...</translation>
    </message>
    <message>
        <source>Files excluded from syncing</source>
        <translation>Filer der er udelukket fra synkronisering</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Oprettet</translation>
    </message>
    <message>
        <source>The Quillmere service is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>Quillmere-tjenesten er slået fra på serveren. Bed serveradministratoren om at slå den til.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Choose shared folders to sync</source>
        <translation>Vælg delte mapper der skal synkroniseres</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]&amp;Fjern</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Uploader...</translation>
    </message>
    <message>
        <source>To use selective sync, ask the server administrator to upgrade Quillmere on the server.</source>
        <translation>Hvis du vil bruge selektiv synkronisering, skal du bede serveradministratoren om at opgradere Quillmere på serveren.</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Ingen indstillinger er blevet ændret.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]Filer i brug</translation>
    </message>
    <message>
        <source>Repairs errors in the installation of [ProductName] by restoring missing or damaged files and shortcuts.</source>
        <translation>Reparerer fejl i installationen af [ProductName] ved at gendanne manglende eller beskadigede filer og genveje.</translation>
    </message>
    <message>
        <source>Excluded file extensions</source>
        <translation>Udelukkede filendelser</translation>
    </message>
    <message>
        <source>Syncing is paused.</source>
        <translation>Synkroniseringen er sat på pause.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome back to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Velkommen tilbage til installationsguiden til [ProductName]</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Adgangskode</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is not mounted. Mount the drive, then resume syncing. See Sync tasks for the folder.</source>
        <translation>Drevet med synkroniseringsmappen er ikke monteret. Monter drevet, og genoptag derefter synkroniseringen. Mappen er vist under ”Synkroniseringsopgaver”.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Rediger</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full.</source>
        <translation>Drevet med synkroniseringsmappen er fuldt.</translation>
    </message>
    <message>
        <source>Proxy server address</source>
        <translation>Proxyserverens adresse</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Prøv igen</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorer</translation>
    </message>
    <message>
        <source>A folder with this name already exists on this computer. Merge its files with those on the server?</source>
        <translation>Der findes allerede en mappe med dette navn på denne computer. Vil du flette dens filer med filerne på serveren?</translation>
    </message>
    <message>
        <source>Quillmere keeps your files in sync between your computers and your server.</source>
        <translation>Quillmere holder dine filer synkroniserede mellem dine computere og din server.</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Ændr de installerede funktioner</translation>
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
        <translation>Opgraderer Quillmere...</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Synkroniseringstilstand</translation>
    </message>
    <message>
        <source>Enter a domain name, an IP address, or a server ID.</source>
        <translation>Angiv et domænenavn, en IP-adresse eller et server-id.</translation>
    </message>
    <message>
        <source>A share link could not be created for this file. Check the connection to the server, then try again.</source>
        <translation>Der kunne ikke oprettes et delingslink til denne fil. Kontroller forbindelsen til serveren, og prøv igen.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Id</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anvend</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Færdig</translation>
    </message>
    <message>
        <source>Files being synced: %1</source>
        <translation>Filer der synkroniseres: %1</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Forbind igen</translation>
    </message>
    <message>
        <source>Your files, in sync everywhere</source>
        <translation>Dine filer, synkroniserede overalt</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>The Setup Wizard is making the changes you chose.</source>
        <translation>Installationsguiden foretager de valgte ændringer.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>The folders and files you deselected will be removed from this computer. They will be kept on the server.</source>
        <translation>De mapper og filer du har fravalgt, bliver fjernet fra denne computer. De bevares på serveren.</translation>
    </message>
    <message>
        <source>Setup made all the changes you chose. Click Finish to exit the Setup Wizard.</source>
        <translation>Installationsprogrammet har foretaget alle de valgte ændringer. Klik på ”Slut” for at afslutte installationsguiden.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Klik på ”Fjern” for at fjerne [ProductName] fra din computer. Klik på ”Tilbage” for at gennemse dine valg, eller klik på ”Annuller” for at afslutte installationsguiden.</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>Ingen plads tilbage</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Forbindelse afbrudt</translation>
    </message>
    <message>
        <source>You have used all of your space on the server.</source>
        <translation>Du har brugt al din plads på serveren.</translation>
    </message>
    <message>
        <source>Disconnect from the server?\nYour files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>Vil du afbryde forbindelsen til serveren?\nDine filer bevares på denne computer og på serveren, men de bliver ikke længere synkroniseret.</translation>
    </message>
    <message>
        <source>The relay service has a problem. Try again later, or connect to the server by its IP address.</source>
        <translation>Der er et problem med relætjenesten. Prøv igen senere, eller opret forbindelse til serveren via dens IP-adresse.</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>Server-id</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Udelukkede filnavne</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Serveradresse</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsæt</translation>
    </message>
    <message>
        <source>Turned on</source>
        <translation>Slået til</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full. Free some space on it to continue syncing.</source>
        <translation>Drevet med synkroniseringsmappen er fuldt. Frigør plads på det for at fortsætte synkroniseringen.</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Mapper der skal synkroniseres</translation>
    </message>
    <message>
        <source>Choose sync folder</source>
        <translation>Vælg synkroniseringsmappe</translation>
    </message>
    <message>
        <source>Connection settings</source>
        <translation>Forbindelsesindstillinger</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selektiv synkronisering</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>You have used all of your space on the server. Delete files you do not need, or ask the server administrator for more space.</source>
        <translation>Du har brugt al din plads på serveren. Slet filer du ikke har brug for, eller bed serveradministratoren om mere plads.</translation>
    </message>
    <message>
        <source>After you start [ProductName], you can find it in the system tray.</source>
        <translation>Når du har startet [ProductName], finder du programmet i meddelelsesområdet.</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open and restart the computer later</source>
        <translation>Lad programmerne &amp;være åbne, og genstart computeren senere</translation>
    </message>
    <message>
        <source>Use the following proxy server</source>
        <translation>Brug følgende proxyserver</translation>
    </message>
    <message>
        <source>This file was changed on this computer and on the server. Both copies are in the same folder under different names. Compare them, then keep the one you need.</source>
        <translation>Denne fil blev ændret både på denne computer og på serveren. Begge kopier ligger i samme mappe under forskellige navne. Sammenlign dem, og behold den du har brug for.</translation>
    </message>
    <message>
        <source>All your files on every computer, kept on your own server</source>
        <translation>Alle dine filer på alle computere, gemt på din egen server</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Vis skrivebordsnotifikationer</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Close them, then click Retry. To continue without closing them, click Ignore. To leave setup, click Exit.</source>
        <translation>Følgende programmer bruger filer som installationsprogrammet skal opdatere. Luk dem, og klik derefter på ”Prøv igen”. Klik på ”Ignorer” for at fortsætte uden at lukke dem. Klik på ”Afslut” for at afslutte installationsprogrammet.</translation>
    </message>
    <message>
        <source>The server cannot be reached. Check the network connection and the server address, then try again.</source>
        <translation>Serveren kan ikke nås. Kontroller netværksforbindelsen og serveradressen, og prøv igen.</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Lokal synkroniseringsmappe</translation>
    </message>
    <message>
        <source>Files that match an entry in this list are not synced.</source>
        <translation>Filer der svarer til et punkt på denne liste, synkroniseres ikke.</translation>
    </message>
    <message>
        <source>Edit connection...</source>
        <translation>Rediger forbindelse...</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Indstillinger</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Choose whether setup should close them. If they stay open, you need to restart the computer to finish setup.</source>
        <translation>Følgende programmer bruger filer som installationsprogrammet skal opdatere. Vælg om installationsprogrammet skal lukke dem. Hvis de forbliver åbne, skal du genstarte computeren for at fuldføre ændringerne.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair.</source>
        <translation>Installationsguiden er klar til at begynde reparationen.</translation>
    </message>
    <message>
        <source>Open Quillmere</source>
        <translation>Åbn Quillmere</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Genstart %1 for at anvende de nye sprogindstillinger.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Sæt på pause</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>Vis ikonoverlejringer på udelukkede filer</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Indlæser...</translation>
    </message>
    <message>
        <source>The limit of synced shared folders is reached: %1. Stop syncing a shared folder before you add another.</source>
        <translation>Grænsen for synkroniserede delte mapper er nået: %1. Stop synkroniseringen af en delt mappe før du tilføjer en anden.</translation>
    </message>
    <message>
        <source>Remove this sync task?\nIts files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>Vil du fjerne denne synkroniseringsopgave?\nDens filer bevares på denne computer og på serveren, men de bliver ikke længere synkroniseret.</translation>
    </message>
    <message>
        <source>Starting Quillmere...</source>
        <translation>Starter Quillmere...</translation>
    </message>
    <message>
        <source>Quillmere could not be upgraded. Your earlier version was kept. Restart the computer, then try again. Details are in ~/.Quillmere/log.</source>
        <translation>Quillmere kunne ikke opgraderes. Din tidligere version er bevaret. Genstart computeren, og prøv igen. Du finder detaljer i ”~/.Quillmere/log”.</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>Udeluk navne der begynder med et punktum</translation>
    </message>
    <message>
        <source>The server has no free disk space. Ask the server administrator to free some space.</source>
        <translation>Serveren har ingen ledig diskplads. Bed serveradministratoren om at frigøre plads.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]License agreement</source>
        <translation>[DlgTitleFont]Licensaftale</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>”%1” blev downloadet.</translation>
    </message>
    <message>
        <source>The versions of this file could not be listed. Check the connection to the server, then try again.</source>
        <translation>Versionerne af denne fil kunne ikke vises. Kontroller forbindelsen til serveren, og prøv igen.</translation>
    </message>
    <message>
        <source>Connected to the server.</source>
        <translation>Forbundet til serveren.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup is complete</source>
        <translation>{\VerdanaBold13}Installationsprogrammet til [ProductName] er færdigt</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokalt netværk</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Brug ikke en proxyserver</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Delt mappe ikke fundet</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Næste</translation>
    </message>
    <message>
        <source>Parvenor Quillmere</source>
        <translation>Parvenor Quillmere</translation>
    </message>
    <message>
        <source>%1 could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>”%1” kunne ikke downloades. Kontroller forbindelsen til serveren, og prøv igen.</translation>
    </message>
    <message>
        <source>Watching for file changes...</source>
        <translation>Overvåger filændringer...</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Delt mappe</translation>
    </message>
    <message>
        <source>Quillmere settings</source>
        <translation>Indstillinger for Quillmere</translation>
    </message>
    <message>
        <source>The share link could not be deleted. Check the connection to the server, then try again.</source>
        <translation>Delingslinket kunne ikke slettes. Kontroller forbindelsen til serveren, og prøv igen.</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified: it may have expired, belong to another server, or come from an unknown issuer. Ask the server administrator to check the certificate.</source>
        <translation>Serverens certifikat kunne ikke bekræftes: det kan være udløbet, tilhøre en anden server eller komme fra en ukendt udsteder. Bed serveradministratoren om at kontrollere certifikatet.</translation>
    </message>
    <message>
        <source>This is not the server that this computer was connected to. Check the server address, or reconnect.</source>
        <translation>Dette er ikke den server som denne computer var forbundet til. Kontroller serveradressen, eller forbind igen.</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>[ProductName] har ingen funktioner der kan ændres hver for sig.</translation>
    </message>
    <message>
        <source>The address or port of the proxy server is missing. Enter both, then try again.</source>
        <translation>Proxyserverens adresse eller port mangler. Angiv begge dele, og prøv igen.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>The user name is missing. Enter a user name.</source>
        <translation>Brugernavnet mangler. Angiv et brugernavn.</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Slet link</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fejl</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>Jeg &amp;accepterer vilkårene i licensaftalen</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>Opdateret: %1</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Administrer forbindelser</translation>
    </message>
    <message>
        <source>Connect to another server...</source>
        <translation>Forbind til en anden server...</translation>
    </message>
    <message>
        <source>Show icon overlays</source>
        <translation>Vis ikonoverlejringer</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Making changes to [ProductName]</source>
        <translation>[DlgTitleFont]Foretager ændringer i [ProductName]</translation>
    </message>
    <message>
        <source>Service turned off</source>
        <translation>Tjenesten er slået fra</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synkroniser</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder?\nThe files already on this computer will be kept.</source>
        <translation>Vil du stoppe synkroniseringen af denne delte mappe?\nDe filer der allerede er på denne computer, bevares.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installer</translation>
    </message>
    <message>
        <source>Files to exclude</source>
        <translation>Filer der skal udelukkes</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>Statusdetaljer</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>Jeg accepterer i&amp;kke vilkårene i licensaftalen</translation>
    </message>
    <message>
        <source>Something went wrong. Try again, and contact the server administrator if the problem continues. Details are in ~/.Quillmere/log.</source>
        <translation>Noget gik galt. Prøv igen, og kontakt serveradministratoren hvis problemet fortsætter. Du finder detaljer i ”~/.Quillmere/log”.</translation>
    </message>
    <message>
        <source>Tray icons</source>
        <translation>Ikoner i meddelelsesområdet</translation>
    </message>
    <message>
        <source>The folder is read-only. Choose a folder you can write to.</source>
        <translation>Mappen er skrivebeskyttet. Vælg en mappe du kan skrive til.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Næste</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Tilbage</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxyindstillinger</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so Quillmere might not install completely. Continue?</source>
        <translation>Du er ikke logget ind som administrator, så Quillmere bliver muligvis ikke installeret fuldstændigt. Vil du fortsætte?</translation>
    </message>
    <message>
        <source>Use the tray icon at any time to see the sync status or change the settings.</source>
        <translation>Du kan når som helst bruge ikonet i meddelelsesområdet til at se synkroniseringsstatus eller ændre indstillingerne.</translation>
    </message>
    <message>
        <source>Share link created</source>
        <translation>Delingslink oprettet</translation>
    </message>
    <message>
        <source>The user name or password is not correct. Check both, then try again.</source>
        <translation>Brugernavnet eller adgangskoden er forkert. Kontroller begge dele, og prøv igen.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Klar til at reparere [ProductName]</translation>
    </message>
    <message>
        <source>The shared folder %1 is now available. Click here to sync it.</source>
        <translation>Den delte mappe ”%1” er nu tilgængelig. Klik her for at synkronisere den.</translation>
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
        <translation>Forbindelsesoplysninger</translation>
    </message>
    <message>
        <source>Lets you choose which features are installed.</source>
        <translation>Her kan du vælge hvilke funktioner der skal installeres.</translation>
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
        <translation>Vælg en anden mappe...</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Kun download</translation>
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
        <translation>Angiv serveradressen og den konto du bruger på serveren.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Fjern</translation>
    </message>
    <message>
        <source>Another server was found at the server address.</source>
        <translation>Der blev fundet en anden server på serveradressen.</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>Forbinder til serveren...</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Create share link</source>
        <translation>Opret delingslink</translation>
    </message>
    <message>
        <source>The user name or password was not accepted by the server. Edit the connection and enter them again.</source>
        <translation>Brugernavnet eller adgangskoden blev ikke godkendt af serveren. Rediger forbindelsen, og angiv dem igen.</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Senest opdaterede filer</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Brug systemets proxyindstillinger</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>Skift mappe...</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Slut</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappesti</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Downloader...</translation>
    </message>
    <message>
        <source>File locked</source>
        <translation>Filen er låst</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Forbereder...</translation>
    </message>
    <message>
        <source>Syncing files...</source>
        <translation>Synkroniserer filer...</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Klar til at installere [ProductName]</translation>
    </message>
    <message>
        <source>Checking the user name and password...</source>
        <translation>Kontrollerer brugernavn og adgangskode...</translation>
    </message>
    <message>
        <source>Wait while the Setup Wizard makes the changes to [ProductName]. This can take several minutes.</source>
        <translation>Vent mens installationsguiden foretager ændringerne i [ProductName]. Det kan tage flere minutter.</translation>
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
        <translation>Server-id’et er ikke gyldigt. Kontroller server-id’et, og prøv igen.</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>Åbn synkroniseringsmappe</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Ved dobbeltklik på ikonet i meddelelsesområdet</translation>
    </message>
    <message>
        <source>Syncing could not be turned on for this shared folder. Check your permissions on the server, then try again.</source>
        <translation>Synkronisering kunne ikke slås til for denne delte mappe. Kontroller dine tilladelser på serveren, og prøv igen.</translation>
    </message>
    <message>
        <source>File sharing over the relay is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>Fildeling via relæet er slået fra på serveren. Bed serveradministratoren om at slå den til.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Tilføj</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Værdi</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Genoptag synkronisering</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Afslut</translation>
    </message>
    <message>
        <source>The share link was copied to the clipboard.</source>
        <translation>Delingslinket blev kopieret til udklipsholderen.</translation>
    </message>
    <message>
        <source>The local sync folder was not found. Restore the folder, or choose another folder. See Sync tasks for its path.</source>
        <translation>Den lokale synkroniseringsmappe blev ikke fundet. Gendan mappen, eller vælg en anden mappe. Stien er vist under ”Synkroniseringsopgaver”.</translation>
    </message>
    <message>
        <source>Upgrade Quillmere</source>
        <translation>Opgrader Quillmere</translation>
    </message>
    <message>
        <source>Add sync task...</source>
        <translation>Tilføj opgave...</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server. Ask the server administrator to mount it. See Shared folders for its name.</source>
        <translation>Den delte mappe er ikke monteret på serveren. Bed serveradministratoren om at montere den. Navnet er vist under ”Delte mapper”.</translation>
    </message>
    <message>
        <source>The server sent an unexpected response. Upgrade Quillmere on this computer, and ask the server administrator to upgrade it on the server. Details are in ~/.Quillmere/log.</source>
        <translation>Serveren sendte et uventet svar. Opgrader Quillmere på denne computer, og bed serveradministratoren om at opgradere Quillmere på serveren. Du finder detaljer i ”~/.Quillmere/log”.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Serveroversigt</translation>
    </message>
    <message>
        <source>Syncing stopped because of a problem. Click here for details.</source>
        <translation>Synkroniseringen stoppede på grund af et problem. Klik her for at se detaljer.</translation>
    </message>
    <message>
        <source>Enter a size of at most %1 MB.</source>
        <translation>Angiv en størrelse på højst %1&#xa0;MB.</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Kontrollerer filer...</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Forsøger at synkronisere...</translation>
    </message>
    <message>
        <source>Click Install to begin the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Klik på ”Installer” for at begynde installationen af [ProductName]. Klik på ”Tilbage” for at gennemse dine valg, eller klik på ”Annuller” for at afslutte installationsguiden.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup was canceled</source>
        <translation>{\VerdanaBold13}Installationsprogrammet til [ProductName] blev afbrudt</translation>
    </message>
    <message>
        <source>The folder is not empty. Merge its files with those on the server, or choose another folder.</source>
        <translation>Mappen er ikke tom. Flet dens filer med filerne på serveren, eller vælg en anden mappe.</translation>
    </message>
    <message>
        <source>This folder is being indexed. Its files will appear when indexing is complete.</source>
        <translation>Denne mappe er ved at blive indekseret. Dens filer vises når indekseringen er færdig.</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Brugernavn</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Flet</translation>
    </message>
    <message>
        <source>You can open the files in this shared folder, but changes you make are not uploaded.</source>
        <translation>Du kan åbne filerne i denne delte mappe, men de ændringer du foretager, bliver ikke uploadet.</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Netværksindstillinger</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder. Choose another folder.</source>
        <translation>Denne mappe synkroniseres allerede med en anden delt mappe. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Genoptag</translation>
    </message>
    <message>
        <source>The server has no free disk space.</source>
        <translation>Serveren har ingen ledig diskplads.</translation>
    </message>
    <message>
        <source>Relay by server ID</source>
        <translation>Relæ via server-id</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nej</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Vælg hvad du vil gøre.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup did not finish</source>
        <translation>{\VerdanaBold13}Installationsprogrammet til [ProductName] blev ikke færdigt</translation>
    </message>
    <message>
        <source>Quillmere is already running.</source>
        <translation>Quillmere kører allerede.</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Velkommen</translation>
    </message>
    <message>
        <source>Start Quillmere when I sign in to this computer</source>
        <translation>Start Quillmere når jeg logger ind på denne computer</translation>
    </message>
    <message>
        <source>All files from both folders are kept. If two versions of a file differ, both are kept under different names.</source>
        <translation>Alle filer fra begge mapper bevares. Hvis to versioner af en fil er forskellige, bevares de begge under forskellige navne.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Reparer installationen</translation>
    </message>
    <message>
        <source>Syncing turned on</source>
        <translation>Synkronisering slået til</translation>
    </message>
    <message>
        <source>Quillmere could not start. Restart the computer, then start Quillmere again. Details are in ~/.Quillmere/log.</source>
        <translation>Quillmere kunne ikke starte. Genstart computeren, og start derefter Quillmere igen. Du finder detaljer i ”~/.Quillmere/log”.</translation>
    </message>
    <message>
        <source>Cancel [ProductName] setup?</source>
        <translation>Vil du afbryde installationsprogrammet til [ProductName]?</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Fortsæt alligevel</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove [ProductName]</source>
        <translation>[DlgTitleFont]Ændr, reparer eller fjern [ProductName]</translation>
    </message>
    <message>
        <source>Quillmere is set up</source>
        <translation>Quillmere er sat op</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprog</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Avancerede indstillinger</translation>
    </message>
    <message>
        <source>Browse versions...</source>
        <translation>Gennemse versioner...</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]Æn&amp;dr</translation>
    </message>
    <message>
        <source>This computer is disconnected from the server. Reconnect to continue syncing.</source>
        <translation>Denne computers forbindelse til serveren er afbrudt. Forbind igen for at fortsætte synkroniseringen.</translation>
    </message>
    <message>
        <source>Detecting...</source>
        <translation>Undersøger...</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Certifikatadvarsel</translation>
    </message>
    <message>
        <source>The relay service cannot be reached. Check the internet connection, then try again.</source>
        <translation>Relætjenesten kan ikke nås. Kontroller internetforbindelsen, og prøv igen.</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Fjerner [ProductName] fra din computer.</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>Downloader ”%1”...</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Slut</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Skrivebeskyttet mappe</translation>
    </message>
    <message>
        <source>[DlgTitleFont]You canceled setup, and your computer was not changed.</source>
        <translation>[DlgTitleFont]Du afbrød installationsprogrammet, og der er ikke foretaget ændringer på din computer.</translation>
    </message>
    <message>
        <source>The port number is not valid. Enter a number from 1 to 65535.</source>
        <translation>Portnummeret er ikke gyldigt. Angiv et tal fra 1 til 65535.</translation>
    </message>
    <message>
        <source>Quillmere cannot watch for changes on a network drive. Choose a folder on a local drive.</source>
        <translation>Quillmere kan ikke overvåge ændringer på et netværksdrev. Vælg en mappe på et lokalt drev.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Fjern installationen</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direkte forbindelse</translation>
    </message>
    <message>
        <source>The drive on the server that holds this folder is not mounted. Ask the server administrator to mount it. See Sync tasks for the folder.</source>
        <translation>Det drev på serveren som indeholder denne mappe, er ikke monteret. Bed serveradministratoren om at montere det. Mappen er vist under ”Synkroniseringsopgaver”.</translation>
    </message>
    <message>
        <source>This version of Quillmere is already installed. Install it again?</source>
        <translation>Denne version af Quillmere er allerede installeret. Vil du installere den igen?</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server. Upgrade it, then try again.</source>
        <translation>Quillmere på denne computer er for gammel til at fungere sammen med serveren. Opgrader Quillmere, og prøv igen.</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer.</source>
        <translation>Quillmere på serveren er for gammel til at fungere sammen med denne computer.</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>Slået fra</translation>
    </message>
</context>
</TS>
